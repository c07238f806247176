// SPDX-License-Identifier: MIT
#pragma once

#include "qgis/layers/LayerValues.h"

#include <QString>
#include <QStringList>
#include <qgsmapthemecollection.h>

#include <memory>

class QgsMapLayer;
class QgsProject;

namespace Orvane {

class ILayerStore;
class IUndoStep;
class ProjectMirror;
class ThemeStep;

/// Exchanges layer schemes with the map themes of a QGIS project. A theme says which layers are visible, and
/// which of its named styles each has.
///
/// All functions raise errors of the store.
class MapThemes
{
public:
    /// None of these is owned; all outlive this object. mirror: of that project and store.
    MapThemes(QgsProject& project, ILayerStore& store, ProjectMirror& mirror);

    /// The project's themes.
    QStringList Names() const;
    bool Has(const QString& theme) const;

    /// Stores each theme as a scheme of that name, which is replaced if it exists, all in one transaction.
    /// What a theme cannot say is taken from the layers as they are. The layers and the current scheme stay.
    void Import(const QStringList& themes);

    /// Makes a theme of the saved values of a scheme, under its name, and replaces one that exists. A layer
    /// that looks like that in none of its styles gets a new one, named after the scheme; a style of another
    /// origin is not replaced. Groups stay ticked and unfolded as they are. Returns the step, which was done.
    /// Raises HostError::UnknownScheme.
    std::unique_ptr<IUndoStep> Export(const QString& scheme);

private:
    using Themes = QgsMapThemeCollection;

    void ImportOne(const QString& theme);
    LayerValues ThemeValues(QgsMapLayer& layer, const Themes::MapThemeLayerRecord& record);
    Themes::MapThemeLayerRecord
    RecordOf(QgsMapLayer& layer, const LayerValues& wanted, const LayerValues& present, ThemeStep& step);
    QString
    StyleFor(QgsMapLayer& layer, const LayerValues& wanted, const LayerValues& present, ThemeStep& step);

    QgsProject& m_project;
    ILayerStore& m_store;
    ProjectMirror& m_mirror;
};

} // namespace Orvane
