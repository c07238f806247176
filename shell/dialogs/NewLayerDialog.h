// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/DataSource.h"

#include <QDialog>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

namespace Ui {
class NewLayerDialog;
}

namespace Orvane {

/// A layer that a file offers.
struct OfferedLayer {
    QString path; ///< of the data; not the file that was named if this only belongs to them
    SourceLayer layer;
    QString title; ///< the name to give to it
};

/// What a file offers.
struct LayerOffer {
    std::vector<OfferedLayer> layers;
    QStringList problems; ///< sentences for the user: what cannot be read of the file
};

/// Asks what a new layer is to contain: no features yet, in a GeoPackage, or a layer of a data source. A
/// folder is no data source, unless its format makes it one.
class NewLayerDialog : public QDialog
{
    Q_OBJECT
public:
    /// Examines a file while the user waits; may raise.
    using Look = std::function<LayerOffer(const QString& path)>;

    /// dataFile: the GeoPackage that empty layers are put into unless the user names another; absolute.
    NewLayerDialog(const QString& dataFile, Look look, QWidget* parent);
    ~NewLayerDialog() override;

    /// True for an empty layer, false for one from a source.
    bool IsEmptyLayer() const;
    /// Trimmed; not empty once the dialog was accepted.
    QString Name() const;
    /// The kind of an empty layer's features.
    FeatureKind Kind() const;
    /// The GeoPackage of an empty layer, or the file that was named as the source; absolute.
    QString File() const;
    /// The chosen layer of the source.
    const OfferedLayer& Source() const;

private:
    void Wire();
    void BrowseForPackage();
    void BrowseForSource();
    void ShowSource();
    QStringList ReadSource();
    void ShowProblems(const QStringList& problems);
    void TakeNameOfSource();
    void UpdateEnabled();

    std::unique_ptr<Ui::NewLayerDialog> m_ui;
    Look m_look;
    std::vector<OfferedLayer> m_layers;
    QString m_shownSource; // whose layers are listed
    bool m_nameIsOwn = false; // the user typed it
};

} // namespace Orvane
