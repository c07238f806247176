// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/undo/IUndoStep.h"

#include <QCoreApplication>
#include <QString>
#include <qgsmaplayerstyle.h>
#include <qgsmapthemecollection.h>

#include <optional>
#include <vector>

class QgsMapLayer;
class QgsProject;

namespace Orvane {

/// Makes a map theme, or replaces one, and adds the styles that it needs to layers.
class ThemeStep final : public IUndoStep
{
    Q_DECLARE_TR_FUNCTIONS(ThemeStep)

public:
    /// project: not owned; outlives this object.
    ThemeStep(QgsProject& project, const QString& theme);

    /// Plans a style for the layer, and returns its name: that of the theme, if the layer has none of that
    /// name, or if it is only there for the theme that is replaced; otherwise one with a number.
    QString AddStyle(const QgsMapLayer& layer, const QgsMapLayerStyle& style);
    /// Plans the theme.
    void SetTheme(const QgsMapThemeCollection::MapThemeRecord& theme) { m_after = theme; }

    QString Text() const override;
    /// Raises HostError::StepOutdated if the theme was changed since. A new style that is current
    /// by now stays.
    void Undo() override;
    void Redo() override;

private:
    using Theme = QgsMapThemeCollection::MapThemeRecord;

    struct Style {
        QString layerID;
        QString name;
        QgsMapLayerStyle before; // invalid if the layer had none of that name
        QgsMapLayerStyle after;
    };

    bool IsOfTheme(const QgsMapLayer& layer) const;
    std::optional<Theme> Present() const;
    void Require(const std::optional<Theme>& expected) const;
    void SetStyle(const Style& style, const QgsMapLayerStyle& value);

    QgsProject& m_project;
    QString m_name;
    std::optional<Theme> m_before;
    std::optional<Theme> m_after;
    std::vector<Style> m_styles;
};

} // namespace Orvane
