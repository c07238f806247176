// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/panel/PropertyEditor.h"
#include "component/dialog/panel/SliderQuestion.h"
#include "component/dialog/panel/TranslatedLabel.h"

class QAbstractButton;
class QLabel;

namespace Orvane {

/// Returns value, or the default if value is Null.
Value NullDefault(const Value& value, const Value& defaultValue);

/// The visible scale range: two labels, each with a button that opens the slider. Values are scale indices; 0
/// and 256 both mean "dont care". If a limit would cross the other one, both are set to the same value.
class ScaleRangeEditor final : public PropertyEditor
{
public:
    struct Widgets {
        QLabel* lblScaleMin;
        QAbstractButton* cmdEditMinScale;
        QLabel* lblScaleMax;
        QAbstractButton* cmdEditMaxScale;
    };

    /// widgets, translator: not owned; outlive this object. ask: opens the slider.
    ScaleRangeEditor(const Widgets& widgets, const IUITranslator& translator, AskSlider ask);

    std::vector<SlotControl> Controls() const override;
    void Show(const LayerStyle& record, const LayerStyle& shown) override;
    void Read(LayerStyle& style) const override;
    void Retranslate() override;

private:
    void EditMinimum();
    void EditMaximum();

    Widgets m_widgets;
    AskSlider m_ask;
    TranslatedLabel m_minimum;
    TranslatedLabel m_maximum;
    bool m_minimumDiffers = false;
    bool m_maximumDiffers = false;
};

} // namespace Orvane
