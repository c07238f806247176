// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/SourceReader.h"
#include "mapkit/drawing/MapLayer.h"

#include <QDialog>

#include <map>
#include <memory>
#include <vector>

namespace Ui {
class LayerPropertiesDialog;
}

namespace Orvane {

class MapDocument;
class SystemCatalogue;
struct RasterDetails;
struct SourceDetails;

/// Shows where a layer's data are and what they are, and lets the user choose their coordinate system.
///
///     LayerPropertiesDialog dialog(document, layers, layerID, catalogue, &window);
///     if (dialog.exec() == QDialog::Accepted)
///         store(dialog.Changes());
class LayerPropertiesDialog : public QDialog
{
    Q_OBJECT
public:
    /// document, catalogue: outlive the dialog. layers: those to choose from; layerID: of the one that is
    /// shown at first. Raises errors of the database.
    LayerPropertiesDialog(
        const MapDocument& document, const std::vector<MapLayer>& layers, qint32 layerID,
        SystemCatalogue& catalogue, QWidget* parent);
    ~LayerPropertiesDialog() override;

    /// The layer that is shown.
    qint32 LayerID() const;
    /// The sources with another system than before.
    std::vector<LayerSource> Changes() const;

private:
    void FillLayers(const std::vector<MapLayer>& layers, qint32 layerID);
    void Connect();
    void ShowLayer();
    void ShowSource(const LayerSource& source);
    void ReadDetails(const LayerSource& source);
    void ShowDetails(const SourceDetails& details);
    void ReadRaster(const LayerSource& source);
    void ShowRaster(const RasterDetails& details);
    void ShowCaptions(bool isRaster);
    void ShowSystem();
    QString OriginText(const QString& chosen) const;
    void ChangeSystem();
    void TakeSystem(const QString& system);

    std::unique_ptr<Ui::LayerPropertiesDialog> m_ui;
    SystemCatalogue& m_catalogue;
    std::map<qint32, LayerSource> m_stored; // by layer ID
    std::map<qint32, QString> m_chosen; // systems; empty: as the source says
    QString m_named; // the system that the shown layer's source names
    bool m_isReadable = false; // the shown layer's source
};

} // namespace Orvane
