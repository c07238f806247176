// SPDX-License-Identifier: MIT
#include "component/dialog/panel/FlagEditor.h"

#include "component/common/EventGuard.h"
#include "component/model/LayerStyle.h"
#include "ovctrls/CheckBoxPlus.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <QPointer>

#include <algorithm>

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

FlagEditor::FlagEditor(const std::vector<Flag>& flags) : m_flags(flags)
{
    for (const Flag& flag : m_flags) {
        CheckBoxPlus* box = flag.box;
        box->SetErrorReport([watched = QPointer<QWidget>(box)](const std::exception_ptr& error) {
            GuardEvent(watched ? watched->window() : nullptr, [&] { std::rethrow_exception(error); });
        });
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

void FlagEditor::Show(const LayerStyle& record, const LayerStyle& shown)
{
    for (const Flag& flag : m_flags) {
        flag.box->setCycleMode(record.lsIsNull(flag.slot) ? ThreeStateCycle : TwoStateCycle);
        flag.box->setValue(StateOf(shown.lsGet(flag.slot)));
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
    const bool isHitable = BoxOf(Slot::Hitable)->Value() != Unchecked;
    BoxOf(Slot::Selectable)->setEnabled(isHitable);
    BoxOf(Slot::Enquirable)->setEnabled(isHitable);
}

CheckBoxPlus* FlagEditor::BoxOf(qint16 slot) const
{
    const auto flag = std::find_if(
        m_flags.begin(), m_flags.end(), [slot](const Flag& each) { return each.slot == slot; });
    return flag->box;
}

} // namespace Orvane
