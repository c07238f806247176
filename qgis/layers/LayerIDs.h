// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <QtGlobal>

class QgsMapLayer;
class QgsProject;

namespace Orvane {

/// The numbers by which a layer database knows the layers of a project. QGIS knows them by texts. A layer
/// keeps its number in the project file; a copy of a layer gets a number of its own.
///
///     LayerIDs ids(*QgsProject::instance());
///     const qint32 id = ids.Of(*layer);
class LayerIDs
{
public:
    /// Takes over the numbers that the project's layers keep. project: outlives this object.
    explicit LayerIDs(const QgsProject& project);

    /// The layer's number, 1 or more. A layer without one, or with that of another layer, gets the next
    /// number; no number is given twice, even if its layer has left the project.
    qint32 Of(QgsMapLayer& layer);

    /// The layer with that number; nullptr if the project has none.
    QgsMapLayer* Layer(qint32 id) const;

    /// The number of the layer with this ID in QGIS, which may have left the project; 0 if none was given.
    qint32 Known(const QString& text) const { return m_numbers.value(text); }
    /// The other way round.
    QString TextOf(qint32 id) const { return m_texts.value(id); }

    /// Takes over the project's layers as they are now, e.g. after another project was read.
    void Reset();

private:
    qint32 Kept(const QgsMapLayer& layer) const;
    void Keep(QgsMapLayer& layer, qint32 id);

    const QgsProject& m_project;
    QHash<QString, qint32> m_numbers;
    QHash<qint32, QString> m_texts;
    qint32 m_last = 0;
};

} // namespace Orvane
