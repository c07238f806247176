// SPDX-License-Identifier: MIT
#include "component/dialog/panel/FlagEditor.h"

#include "component/common/EventGuard.h"
#include "component/controls/CheckBoxPlus.h"
#include "component/model/LayerStyle.h"

#include <OrvaneShellLib/ValueConversions.h>

namespace Orvane {

namespace {

qint16 StateOf(const Value& value)
{
    if (value.IsNull())
        return Greyed;
    return ToBoolean(value) ? Checked : Unchecked;
}

} // namespace

Value CheckStateToValue(qint16 state)
{
    switch (state) {
    case Unchecked:
        return false;
    case Checked:
        return true;
    case Greyed:
        return Value::Null();
    default:
        return {};
    }
}

FlagEditor::FlagEditor(const Widgets& widgets)
    : m_widgets(widgets), m_flags{
                              {Slot::Enquirable, widgets.chkEnquirable},
                              {Slot::Hitable, widgets.chkHitable},
                              {Slot::Locked, widgets.chkLocked},
                              {Slot::Selectable, widgets.chkSelectable},
                              {Slot::SnapRequired, widgets.chkSnapRequired},
                              {Slot::Visible, widgets.chkVisible},
                              {Slot::UseForSymbols, widgets.chkUseForSymbols}}
{
    for (const Flag& flag : m_flags) {
        CheckBoxPlus* box = flag.box;
        connect(box, &CheckBoxPlus::Click, this, [this, box] {
            GuardEvent(box->window(), [this, box] { OnClick(box); });
        });
    }
}

std::vector<SlotControl> FlagEditor::Controls() const
{
    std::vector<SlotControl> controls;
    for (const Flag& flag : m_flags)
        controls.push_back({flag.slot, flag.box});
    return controls;
}

void FlagEditor::Show(const LayerStyle& record)
{
    for (const Flag& flag : m_flags) {
        flag.box->setCycleMode(record.lsIsNull(flag.slot) ? ThreeStateCycle : TwoStateCycle);
        flag.box->setValue(StateOf(record.lsGet(flag.slot)));
        NotifyChanged(flag.box);
    }
    EnableDependents();
}

void FlagEditor::Read(LayerStyle& style) const
{
    for (const Flag& flag : m_flags)
        style.lsSet(flag.slot, CheckStateToValue(flag.box->Value()));
}

void FlagEditor::OnClick(CheckBoxPlus* box)
{
    EnableDependents();
    NotifyChanged(box);
}

void FlagEditor::EnableDependents()
{
    const bool isHitable = m_widgets.chkHitable->Value() != Unchecked;
    m_widgets.chkSelectable->setEnabled(isHitable);
    m_widgets.chkEnquirable->setEnabled(isHitable);
}

} // namespace Orvane
