// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/DataSource.h"

#include <QDialog>
#include <QString>

#include <memory>
#include <vector>

namespace Ui {
class NewLayerDialog;
}

namespace Orvane {

/// Asks what a new layer is to contain: no features yet, in a GeoPackage, or a layer of a data source.
class NewLayerDialog : public QDialog
{
    Q_OBJECT
public:
    /// dataFile: the GeoPackage that empty layers are put into unless the user names another; absolute.
    NewLayerDialog(const QString& dataFile, QWidget* parent);
    ~NewLayerDialog() override;

    /// True for an empty layer, false for one from a source.
    bool IsEmptyLayer() const;
    /// Trimmed; not empty once the dialog was accepted.
    QString Name() const;
    /// The kind of an empty layer's features.
    FeatureKind Kind() const;
    /// The GeoPackage of an empty layer, or the source; absolute.
    QString File() const;
    /// The chosen layer of the source.
    const SourceLayer& Source() const;

private:
    void Wire();
    void BrowseForPackage();
    void BrowseForSource();
    void ShowSource();
    QString ReadSource();
    void TakeNameOfSource();
    void UpdateEnabled();

    std::unique_ptr<Ui::NewLayerDialog> m_ui;
    std::vector<SourceLayer> m_layers;
    QString m_shownSource; // whose layers are listed
    bool m_nameIsOwn = false; // the user typed it
};

} // namespace Orvane
