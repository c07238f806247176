// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/FeatureSet.h"

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
/// One object is used by one thread at a time. Errors are RunTimeError with SourceUnchangeable and a sentence
/// that names the file and the reason; what was not saved is then not written.
class SourceEditor
{
    Q_DECLARE_TR_FUNCTIONS(SourceEditor)

public:
    /// Raises for a source that is read only, by its format or by its place.
    explicit SourceEditor(const LayerSource& source);
    ~SourceEditor();
    SourceEditor(const SourceEditor&) = delete;
    SourceEditor& operator=(const SourceEditor&) = delete;

    /// The geometry as the source keeps it, in well-known binary; raises when there is no such feature.
    QByteArray Geometry(qint64 featureID) const;
    /// A geometry of this source moved by so many map units east and north. mapSystem: as in
    /// CoordinateSystems.h. Raises when that leads off the map's earth.
    QByteArray Moved(const QByteArray& geometry, QPointF offset, const QString& mapSystem) const;
    /// The same geometry as the map shows it.
    FeatureSet Shown(const QByteArray& geometry, qint64 featureID, const QString& mapSystem) const;

    /// Gives the feature another geometry; its attributes stay.
    void SetGeometry(qint64 featureID, const QByteArray& geometry);
    /// Writes what was set, and closes the source: nothing else can be called afterwards.
    void Save();

private:
    [[noreturn]] void Fail(const QString& reason) const;

    QString m_path;
    std::unique_ptr<GDALDataset> m_dataset;
    OGRLayer* m_layer = nullptr; // owned by the dataset
};

} // namespace Orvane
