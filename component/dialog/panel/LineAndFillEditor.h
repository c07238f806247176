// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/panel/PropertyEditor.h"
#include "component/styles/StylePickers.h"

#include <QObject>

#include <vector>

class QLabel;

namespace Orvane {

/// The colours, the line and the fill of a layer: five lists, each with a caption next to it. The caption is
/// underlined together with the list, because most list items are pictures.
class LineAndFillEditor final : public QObject, public PropertyEditor
{
    Q_OBJECT

public:
    struct Row {
        OvCombo* list;
        QLabel* caption;
    };

    struct Rows {
        Row lineColour;
        Row fillForeColour;
        Row fillBackColour;
        Row fillStyle;
        Row lineStyle; ///< edits two slots, the style and the thickness
    };

    /// rows: not owned; outlive this object. stylePrefix: the host's StyleCommandPrefix.
    LineAndFillEditor(const Rows& rows, const QString& stylePrefix);

    std::vector<SlotControl> Controls() const override;
    void Fill() override;
    void Show(const LayerStyle& record, const LayerStyle& shown) override;
    void Read(LayerStyle& style) const override;
    void Retranslate() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ShowRecord(const LayerStyle& record);

    Rows m_rows;
    StylePickers m_pickers;
};

} // namespace Orvane
