// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/drawing/MapLayer.h"
#include "mapkit/looks/LayerRendering.h"

#include <QDialog>

#include <map>
#include <memory>
#include <vector>

namespace Ui {
class RenderingDialog;
}

namespace Orvane {

class MapDocument;

/// Asks which attributes label and colour the features of each layer.
///
///     RenderingDialog dialog(document, layers, &window);
///     if (dialog.exec() == QDialog::Accepted)
///         store(dialog.Changes());
///
/// Begins with the first layer whose renderer style uses attributes. Raises errors of the database.
class RenderingDialog : public QDialog
{
    Q_OBJECT
public:
    /// document: outlives the dialog. layers: those to choose from.
    RenderingDialog(const MapDocument& document, const std::vector<MapLayer>& layers, QWidget* parent);
    ~RenderingDialog() override;

    /// Shows the settings of that layer now; does nothing for a layer that is not to choose from.
    void Choose(qint32 layerID);

    /// What was changed, by layer ID; layers that were not changed are left out.
    std::map<qint32, LayerRendering> Changes() const;

private:
    void FillLayers(const std::vector<MapLayer>& layers);
    void Connect();
    void ShowLayer();
    void ShowFields();
    void Keep();
    qint32 LayerID() const;

    std::unique_ptr<Ui::RenderingDialog> m_ui;
    const MapDocument& m_document;
    std::map<qint32, qint32> m_styles; // renderer style by layer ID
    std::map<qint32, LayerRendering> m_stored;
    std::map<qint32, LayerRendering> m_chosen; // of layers that were shown
    bool m_isShowing = false; // controls change because another layer is shown
};

} // namespace Orvane
