// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class GDALDataset;
class OGRLayer;

namespace Orvane {

/// What GDAL opens for one path: one dataset for a file or a folder, one for each data file in an archive
/// (.zip, .tar, .tgz). A file that is compressed alone (.gz) is opened as if it were not. A text table (.csv,
/// .tsv, .psv, .txt) gets columns of numbers where that loses nothing, see OpenTextTable.
///
/// For the thread that made it. Errors of GDAL are left to the GdalErrors of the caller.
class OpenedData
{
public:
    struct Layer {
        QString name; ///< in an archive unique: with its path there, and its suffix, where others share it
        OGRLayer* layer; ///< owned by this object
        bool isTable; ///< no layer of its file has geometry
        GDALDataset* dataset; ///< the file that it is in; owned by this object
        QString earlierName = {}; ///< in maps of earlier versions, which gave several layers one name
    };

    explicit OpenedData(const QString& path);
    ~OpenedData();
    OpenedData(const OpenedData&) = delete;
    OpenedData& operator=(const OpenedData&) = delete;

    /// Whether nothing could be opened.
    bool IsEmpty() const { return m_members.empty(); }
    const std::vector<Layer>& Layers() const;
    /// The layer of that name; without one, the first that earlier versions called so. nullptr for none.
    OGRLayer* Find(const QString& name) const;
    /// The dataset that a layer of this object is in; nullptr for another layer. Owned by this object.
    GDALDataset* DatasetOf(const OGRLayer& layer) const;
    /// GDAL's name for the format of a layer of this object: "GPX".
    QString FormatOf(const OGRLayer& layer) const;
    /// The format for the user: "GPS Exchange Format".
    QString FormatTitleOf(const OGRLayer& layer) const;
    /// The data files within an archive that cannot be opened, without those that accompany others.
    const QStringList& Unopened() const { return m_unopened; }

    /// Whether GDAL gave a layer that name because it has none in its file.
    static bool IsNameless(const QString& layer);

private:
    struct Member {
        QString name; ///< within the archive; empty outside of archives
        std::unique_ptr<GDALDataset> dataset;
    };

    void OpenArchive(const QString& archive);
    std::vector<Layer> NamedLayers() const;

    std::vector<Member> m_members;
    mutable std::vector<Layer> m_layers; // filled when they are first asked for
    QStringList m_unopened;
};

/// GDAL's name for a file within an archive (.zip, .tar, .tgz); empty if there is no such archive.
QString NameInArchive(const QString& archive, const QString& member);
/// The rasters within a file, by their names there: those of an archive, where pictures such as .png are not
/// among them, and those of a GeoPackage, the oldest first. None for other files.
QStringList RastersWithin(const QString& path);

/// Why GDAL cannot read files with that suffix, as part of a sentence: the program has no driver for their
/// format. Empty for other suffixes, and when there is a driver.
QString WhyNoDriver(const QString& path);

} // namespace Orvane
