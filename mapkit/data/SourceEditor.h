// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/FeatureSet.h"
#include "mapkit/data/GeometryChoice.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QPointF>
#include <QString>

#include <memory>

class GDALDataset;
class OGRLayer;

namespace Orvane {

struct LayerSource;

/// The number of the RunTimeError for a source that cannot be changed.
inline constexpr int SourceUnchangeable = 10102;

/// Changes the geometries of a source's features, through GDAL.
///
///     SourceEditor editor(source);
///     const QByteArray before = editor.Geometry(featureID);
///     editor.SetGeometry(featureID, editor.Moved(before, {10, 0}, document.System()));
///     editor.Save();
///
/// An object may be used by only one thread at a time. Errors are RunTimeError with SourceUnchangeable and a
/// sentence that names the file and the reason; unsaved changes are then not written.
class SourceEditor
{
    Q_DECLARE_TR_FUNCTIONS(SourceEditor)

public:
    /// Raises if the source is read-only because of its format or its location.
    explicit SourceEditor(const LayerSource& source);
    ~SourceEditor();
    SourceEditor(const SourceEditor&) = delete;
    SourceEditor& operator=(const SourceEditor&) = delete;

    /// The geometry as the source stores it, in well-known binary; raises if there is no such feature.
    QByteArray Geometry(qint64 featureID) const;
    /// A geometry of this source, moved by an offset in map units to the east and north. mapSystem: as in
    /// CoordinateSystems.h. Raises if the result is outside the valid area of the map's projection.
    QByteArray Moved(const QByteArray& geometry, QPointF offset, const QString& mapSystem) const;
    /// The same geometry as the map shows it.
    FeatureSet Shown(const QByteArray& geometry, qint64 featureID, const QString& mapSystem) const;

    /// Replaces the geometry of the feature; its attributes stay.
    void SetGeometry(qint64 featureID, const QByteArray& geometry);
    /// Writes all changes and closes the source: call nothing else after that.
    void Save();

private:
    [[noreturn]] void Fail(const QString& reason) const;

    QString m_path;
    QString m_chosenSystem; // of the source, if one was chosen
    GeometryChoice m_choice;
    std::unique_ptr<GDALDataset> m_dataset;
    OGRLayer* m_layer = nullptr; // owned by the dataset
};

} // namespace Orvane
