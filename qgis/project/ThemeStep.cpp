// SPDX-License-Identifier: MIT
#include "qgis/project/ThemeStep.h"

#include "hostkit/common/HostErrors.h"
#include "messages/NameInText.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <qgsmaplayer.h>
#include <qgsmaplayerstylemanager.h>
#include <qgsproject.h>

#include <algorithm>

namespace Orvane {

ThemeStep::ThemeStep(QgsProject& project, const QString& theme)
    : m_project(project), m_name(theme), m_before(Present())
{
}

QString ThemeStep::AddStyle(const QgsMapLayer& layer, const QgsMapLayerStyle& style)
{
    const QgsMapLayerStyleManager& manager = *layer.styleManager();
    const QStringList names = manager.styles();
    QString name = m_name;
    for (int number = 2; names.contains(name) && !(name == m_name && IsOfTheme(layer)); ++number)
        name = QStringLiteral("%1 %2").arg(m_name).arg(number);
    const QgsMapLayerStyle before = names.contains(name) ? manager.style(name) : QgsMapLayerStyle();
    m_styles.push_back({layer.id(), name, before, style});
    return name;
}

QString ThemeStep::Text() const
{
    return tr("Export Map Theme \"%1\"").arg(NameInStep(m_name));
}

void ThemeStep::Undo()
{
    Require(m_after);
    if (m_before)
        m_project.mapThemeCollection()->update(m_name, *m_before);
    else
        m_project.mapThemeCollection()->removeMapTheme(m_name);
    for (const Style& style : m_styles)
        SetStyle(style, style.before);
    m_project.setDirty(true);
}

void ThemeStep::Redo()
{
    Require(m_before);
    for (const Style& style : m_styles)
        SetStyle(style, style.after);
    if (m_before)
        m_project.mapThemeCollection()->update(m_name, *m_after);
    else
        m_project.mapThemeCollection()->insert(m_name, *m_after);
    m_project.setDirty(true);
}

// The style of that name serves nothing but the theme.
bool ThemeStep::IsOfTheme(const QgsMapLayer& layer) const
{
    const QgsMapThemeCollection& themes = *m_project.mapThemeCollection();
    const auto uses = [&](const QString& theme) {
        const auto records = themes.mapThemeState(theme).layerRecords();
        return std::any_of(records.begin(), records.end(), [&](const auto& record) {
            return record.layer() == &layer && record.currentStyle == m_name;
        });
    };
    const QStringList names = themes.mapThemes();
    return layer.styleManager()->currentStyle() != m_name && m_before && uses(m_name)
        && std::none_of(
               names.begin(), names.end(), [&](const QString& name) { return name != m_name && uses(name); });
}

std::optional<ThemeStep::Theme> ThemeStep::Present() const
{
    const QgsMapThemeCollection& themes = *m_project.mapThemeCollection();
    return themes.hasMapTheme(m_name) ? std::optional<Theme>(themes.mapThemeState(m_name)) : std::nullopt;
}

void ThemeStep::Require(const std::optional<Theme>& expected) const
{
    const std::optional<Theme> present = Present();
    if (present.has_value() == expected.has_value() && (!present || *present == *expected))
        return;
    throw RunTimeError(
        int(HostError::StepOutdated),
        tr("This step is no longer possible, because the map theme was changed since. Nothing was "
           "changed: %1")
            .arg(Text()),
        QStringLiteral("ThemeStep"));
}

void ThemeStep::SetStyle(const Style& style, const QgsMapLayerStyle& value)
{
    const QgsMapLayer* layer = m_project.mapLayer(style.layerID);
    if (!layer || layer->styleManager()->currentStyle() == style.name)
        return;
    if (layer->styleManager()->styles().contains(style.name))
        layer->styleManager()->removeStyle(style.name);
    if (value.isValid())
        layer->styleManager()->addStyle(style.name, value);
}

} // namespace Orvane
