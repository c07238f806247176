// SPDX-License-Identifier: MIT
#include "component/dialog/panel/ScaleRangeEditor.h"

#include "component/common/Messages.h"
#include "component/controls/VisibleScalesTranslator.h"
#include "component/dialog/panel/PressOpener.h"
#include "component/model/LayerStyle.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <QAbstractButton>
#include <QLabel>

namespace Orvane {

namespace {

constexpr qint32 BelowEveryScale = 0;
constexpr qint32 AboveEveryScale = 257;

} // namespace

Value NullDefault(const Value& value, const Value& defaultValue)
{
    return value.IsNull() ? defaultValue : value;
}

ScaleRangeEditor::ScaleRangeEditor(const Widgets& widgets, const IUITranslator& translator, AskSlider ask)
    : m_widgets(widgets), m_ask(std::move(ask)), m_minimum(*widgets.lblScaleMin, translator),
      m_maximum(*widgets.lblScaleMax, translator)
{
    m_minimum.SetChangeHandler([this] { NotifyChanged(m_widgets.lblScaleMin); });
    m_maximum.SetChangeHandler([this] { NotifyChanged(m_widgets.lblScaleMax); });
    new PressOpener(*widgets.cmdEditMinScale, [this] { EditMinimum(); });
    new PressOpener(*widgets.cmdEditMaxScale, [this] { EditMaximum(); });
}

std::vector<SlotControl> ScaleRangeEditor::Controls() const
{
    return {
        {Slot::MinVisScale, m_widgets.lblScaleMin, m_widgets.cmdEditMinScale},
        {Slot::MaxVisScale, m_widgets.lblScaleMax, m_widgets.cmdEditMaxScale}};
}

void ScaleRangeEditor::Show(const LayerStyle& record, const LayerStyle& shown)
{
    m_minimumDiffers = record.lsIsNull(Slot::MinVisScale);
    m_maximumDiffers = record.lsIsNull(Slot::MaxVisScale);
    m_minimum.Set(shown.lsGet(Slot::MinVisScale));
    m_maximum.Set(shown.lsGet(Slot::MaxVisScale));
}

void ScaleRangeEditor::Read(LayerStyle& style) const
{
    style.lsSet(Slot::MinVisScale, m_minimum.Read());
    style.lsSet(Slot::MaxVisScale, m_maximum.Read());
}

void ScaleRangeEditor::Retranslate()
{
    m_minimum.Retranslate();
    m_maximum.Retranslate();
}

void ScaleRangeEditor::EditMinimum()
{
    const auto chosen = m_ask(
        {.button = m_widgets.cmdEditMinScale,
         .translator = &m_minimum.Translator(),
         .caption = TranslateMsg("Set Minimum Visible Scale"),
         .value = m_minimum.Read(),
         .defaultValue = 0,
         .minimum = 0,
         .maximum = VisibleScalesTranslator::LastScale,
         .allowVarious = m_minimumDiffers});
    if (!chosen)
        return;
    m_minimum.Set(*chosen);
    // "dont care" reads back as 0, so an unlimited maximum is also set to any new lower limit.
    const qint32 maximum = ToInt32(NullDefault(m_maximum.Read(), AboveEveryScale));
    if (!chosen->IsNull() && maximum < ToInt32(*chosen))
        m_maximum.Set(*chosen);
}

void ScaleRangeEditor::EditMaximum()
{
    const auto chosen = m_ask(
        {.button = m_widgets.cmdEditMaxScale,
         .translator = &m_maximum.Translator(),
         .caption = TranslateMsg("Set Maximum Visible Scale"),
         .value = m_maximum.Read(),
         .defaultValue = VisibleScalesTranslator::NoMaximum,
         .minimum = 1,
         .maximum = VisibleScalesTranslator::NoMaximum,
         .allowVarious = m_maximumDiffers});
    if (!chosen)
        return;
    m_maximum.Set(*chosen);
    const qint32 minimum = ToInt32(NullDefault(m_minimum.Read(), BelowEveryScale));
    if (!chosen->IsNull() && minimum > ToInt32(*chosen))
        m_minimum.Set(*chosen);
}

} // namespace Orvane
