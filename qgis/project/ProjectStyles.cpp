// SPDX-License-Identifier: MIT
#include "qgis/project/ProjectStyles.h"

#include "qgis/project/ProjectScope.h"

#include <QSet>
#include <qgsmaplayer.h>
#include <qgsmaplayerstylemanager.h>
#include <qgsproject.h>

#include <algorithm>
#include <utility>

namespace Orvane {

namespace {

const QString StylesEntry = QStringLiteral("RendererStyles");
constexpr int MostNamedLayers = 10;
const QString EnglishDefault = QStringLiteral("default");

// QGIS names it in the language in which the layer was made.
QString DefaultStyleOf(const QgsMapLayer& layer)
{
    const QgsMapLayerStyleManager& manager = *layer.styleManager();
    const QStringList names = manager.styles();
    const auto isDefault = [&manager](const QString& name) { return manager.isDefault(name); };
    const auto found = std::find_if(names.begin(), names.end(), isDefault);
    if (found != names.end())
        return *found;
    return names.contains(EnglishDefault) ? EnglishDefault : QString();
}

} // namespace

ProjectStyles::ProjectStyles(QgsProject& project) : m_project(project)
{
    Reset();
}

qint32 ProjectStyles::Of(const QgsMapLayer& layer)
{
    return NumberIn(layer, layer.styleManager()->currentStyle());
}

qint32 ProjectStyles::NumberIn(const QgsMapLayer& layer, const QString& style)
{
    return style == DefaultStyleOf(layer) ? 0 : NumberOf(style);
}

QString ProjectStyles::NameIn(const QgsMapLayer& layer, qint32 number) const
{
    if (number == 0)
        return DefaultStyleOf(layer);
    const QString name = m_names.value(number - 1);
    const bool isThere = name != DefaultStyleOf(layer) && layer.styleManager()->styles().contains(name);
    return isThere ? name : QString();
}

QString ProjectStyles::ShownName(qint32 number) const
{
    return number == 0 ? tr("Standard") : m_names.value(number - 1, QString::number(number));
}

QString ProjectStyles::RefusalText(qint32 number, const QStringList& layers) const
{
    QString names = layers.mid(0, MostNamedLayers).join(QStringLiteral(", "));
    if (layers.size() > MostNamedLayers)
        names += QStringLiteral(", ...");
    return tr("There is no style \"%1\" in these layers, which keep theirs: %2")
        .arg(ShownName(number), names);
}

std::vector<RendererStyle> ProjectStyles::Offered()
{
    QSet<QString> names;
    for (const QgsMapLayer* layer : m_project.mapLayers()) {
        const QString standard = DefaultStyleOf(*layer);
        for (const QString& name : layer->styleManager()->styles()) {
            if (name != standard)
                names.insert(name);
        }
    }
    std::vector<RendererStyle> offered;
    offered.reserve(size_t(names.size()));
    for (const QString& name : std::as_const(names))
        offered.push_back({NumberOf(name), name});
    std::sort(offered.begin(), offered.end(), [](const RendererStyle& one, const RendererStyle& other) {
        return QString::localeAwareCompare(one.name, other.name) < 0;
    });
    return offered;
}

void ProjectStyles::Rename(const QString& from, const QString& to)
{
    const int place = int(m_names.indexOf(from));
    if (place < 0 || m_names.contains(to) || IsUsed(from))
        return;
    m_names[place] = to;
    Keep();
}

void ProjectStyles::Reset()
{
    m_names = m_project.readListEntry(ProjectScope, StylesEntry);
}

qint32 ProjectStyles::NumberOf(const QString& name)
{
    const int place = int(m_names.indexOf(name));
    if (place >= 0)
        return place + 1;
    m_names.append(name);
    Keep();
    return qint32(m_names.size());
}

bool ProjectStyles::IsUsed(const QString& name) const
{
    const QMap<QString, QgsMapLayer*> layers = m_project.mapLayers();
    return std::any_of(layers.begin(), layers.end(), [&name](const QgsMapLayer* layer) {
        return layer->styleManager()->styles().contains(name);
    });
}

// Part of a change that marks the project, or of reading, which does not.
void ProjectStyles::Keep()
{
    const QgsProjectDirtyBlocker unchanged(&m_project);
    m_project.writeEntry(ProjectScope, StylesEntry, m_names);
}

} // namespace Orvane
