// SPDX-License-Identifier: MIT
#include "component/dialog/panel/PriorityEditor.h"

#include "component/common/Messages.h"
#include "component/dialog/panel/PressOpener.h"
#include "component/model/LayerStyle.h"

#include <QAbstractButton>
#include <QLabel>

namespace Orvane {

PriorityEditor::PriorityEditor(const Widgets& widgets, const IUITranslator& translator, AskSlider ask)
    : m_widgets(widgets), m_ask(std::move(ask)), m_priority(*widgets.lblPriority, translator)
{
    m_priority.SetChangeHandler([this] { NotifyChanged(m_widgets.lblPriority); });
    new PressOpener(*widgets.cmdEditPriority, [this] { Edit(); });
}

std::vector<SlotControl> PriorityEditor::Controls() const
{
    return {{Slot::DrawPriority, m_widgets.lblPriority, m_widgets.cmdEditPriority}};
}

void PriorityEditor::Show(const LayerStyle& record, const LayerStyle& shown)
{
    m_differs = record.lsIsNull(Slot::DrawPriority);
    m_priority.Set(shown.lsGet(Slot::DrawPriority));
    m_priority.Read(); // what cannot be read back could be neither edited nor applied
}

void PriorityEditor::Read(LayerStyle& style) const
{
    style.lsSet(Slot::DrawPriority, m_priority.Read());
}

void PriorityEditor::Retranslate()
{
    m_priority.Retranslate();
}

void PriorityEditor::Edit()
{
    const auto chosen = m_ask(
        {.button = m_widgets.cmdEditPriority,
         .translator = &m_priority.Translator(),
         .caption = TranslateMsg("Set Draw Priority"),
         .value = m_priority.Read(),
         .defaultValue = 1,
         .minimum = 1,
         .maximum = 255,
         .allowVarious = m_differs});
    if (chosen)
        m_priority.Set(*chosen);
}

} // namespace Orvane
