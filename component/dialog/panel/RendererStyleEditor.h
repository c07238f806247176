// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/panel/PropertyEditor.h"

#include <OrvaneShellLib/RendererStyle.h>
#include <OrvaneShellLib/Value.h>

#include <QObject>

class QComboBox;

namespace Orvane {

/// The list cboStyle: "Standard" with the number 0, then the host's renderer styles.
class RendererStyleEditor final : public QObject, public PropertyEditor
{
    Q_OBJECT

public:
    /// list: not owned; outlives this object.
    explicit RendererStyleEditor(QComboBox& list);

    /// Fills the list again; then nothing is selected.
    void FillStyles(const std::vector<RendererStyle>& styles);

    /// The number of the entry that is selected now; Null if none is.
    Value SelectedStyle() const;

    std::vector<SlotControl> Controls() const override;
    /// Selects the entry with the record's number. Selects none for "various" and for a number that the host
    /// does not know; such a number is shown as it is and stays as it is stored.
    void Show(const LayerStyle& record, const LayerStyle& shown) override;
    void Read(LayerStyle& style) const override;
    void Retranslate() override;

private:
    QComboBox& m_list;
    bool m_showsVarious = false;
};

} // namespace Orvane
