// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/panel/PropertyEditor.h"
#include "component/dialog/panel/SliderQuestion.h"
#include "component/dialog/panel/TranslatedLabel.h"

class QAbstractButton;
class QLabel;

namespace Orvane {

/// The draw priority, 1 (highest) to 255 (lowest): a label with a button that opens the slider.
class PriorityEditor final : public PropertyEditor
{
public:
    struct Widgets {
        QLabel* lblPriority;
        QAbstractButton* cmdEditPriority;
    };

    /// widgets, translator: not owned; outlive this object. ask: opens the slider.
    PriorityEditor(const Widgets& widgets, const IUITranslator& translator, AskSlider ask);

    std::vector<SlotControl> Controls() const override;
    void Show(const LayerStyle& record, const LayerStyle& shown) override;
    void Read(LayerStyle& style) const override;
    void Retranslate() override;

private:
    void Edit();

    Widgets m_widgets;
    AskSlider m_ask;
    TranslatedLabel m_priority;
    bool m_differs = false;
};

} // namespace Orvane
