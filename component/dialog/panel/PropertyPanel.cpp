// SPDX-License-Identifier: MIT
#include "component/dialog/panel/PropertyPanel.h"

#include "component/common/Messages.h"

#include <QFont>
#include <QLabel>
#include <QScopedValueRollback>
#include <QStringList>
#include <QVariant>
#include <QWidget>

namespace Orvane {

namespace {

void Underline(QWidget& control, bool underlined)
{
    QFont mark;
    if (underlined)
        mark.setUnderline(true);
    control.setFont(mark);
}

bool IsAboutTheValue(const RunTimeError& error)
{
    return error.Number() == int(ErrorNumber::Overflow) || error.Number() == int(ErrorNumber::TypeMismatch);
}

} // namespace

PropertyPanel::PropertyPanel(QObject* parent) : QObject(parent)
{
}

PropertyPanel::~PropertyPanel() = default;

void PropertyPanel::Join(std::unique_ptr<PropertyEditor> editor)
{
    editor->SetChangeHandler([this](QWidget* control) {
        if (m_showing)
            Speak(*control);
        else
            MarkControlChanged(control, ControlValueChanged(control));
    });
    for (const SlotControl& entry : editor->Controls()) {
        if (entry.speaker)
            m_speakers.insert(entry.control, entry.speaker);
    }
    m_editors.push_back(std::move(editor));
}

void PropertyPanel::Fill()
{
    for (const auto& editor : m_editors)
        editor->Fill();
}

void PropertyPanel::Prepare()
{
    for (const auto& editor : m_editors) {
        for (const SlotControl& entry : editor->Controls()) {
            if (!entry.control->property(TagProperty).isValid())
                entry.control->setProperty(TagProperty, QString::number(entry.slot));
        }
    }
}

std::optional<PropertyPanel::Fault> PropertyPanel::Show(const LayerStyle& record)
{
    std::optional<Fault> fault = ShowAll(record, record);
    ClearMarks();
    return fault;
}

std::optional<PropertyPanel::Fault> PropertyPanel::Follow(const LayerStyle& record)
{
    LayerStyle controls;
    ReadPanelStyle(controls);
    LayerStyle shown = record;
    for (const auto& editor : m_editors) {
        for (const SlotControl& entry : editor->Controls()) {
            if (m_marked.contains(entry.control))
                shown.lsSet(entry.slot, controls.lsGet(entry.slot));
        }
    }
    return ShowAll(record, shown);
}

std::optional<PropertyPanel::Fault> PropertyPanel::ShowAll(const LayerStyle& record, const LayerStyle& shown)
{
    // A maximum scale of 256 reads back as 0, so marks are not reliable while values are being shown.
    const QScopedValueRollback showing(m_showing, true);
    m_record = record;
    LayerStyle values = shown;
    std::optional<Fault> fault;
    for (const auto& editor : m_editors)
        ShowIn(*editor, values, fault);
    return fault;
}

void PropertyPanel::ShowIn(PropertyEditor& editor, LayerStyle& shown, std::optional<Fault>& fault)
{
    try {
        editor.Show(m_record, shown);
    } catch (const RunTimeError& error) {
        if (!IsAboutTheValue(error))
            throw;
        ShowWhatFits(editor, shown, fault);
    }
}

// Which value did not fit is found by showing one more each time.
void PropertyPanel::ShowWhatFits(PropertyEditor& editor, LayerStyle& shown, std::optional<Fault>& fault)
{
    const LayerStyle record = m_record;
    const LayerStyle wanted = shown;
    const std::vector<SlotControl> controls = editor.Controls();
    for (const SlotControl& entry : controls) {
        m_record.lsSet(entry.slot, Value::Null());
        shown.lsSet(entry.slot, Value::Null());
    }
    for (const SlotControl& entry : controls) {
        m_record.lsSet(entry.slot, record.lsGet(entry.slot));
        shown.lsSet(entry.slot, wanted.lsGet(entry.slot));
        try {
            editor.Show(m_record, shown);
        } catch (const RunTimeError& error) {
            if (!IsAboutTheValue(error))
                throw;
            if (!fault)
                fault = Fault{entry.slot, record.lsGet(entry.slot), error};
            m_record.lsSet(entry.slot, Value::Null());
            shown.lsSet(entry.slot, Value::Null());
        }
    }
    editor.Show(m_record, shown);
}

void PropertyPanel::ReadPanelStyle(LayerStyle& style) const
{
    for (const auto& editor : m_editors)
        editor->Read(style);
}

void PropertyPanel::ReadEdits(LayerStyle& style) const
{
    ReadPanelStyle(style);
    for (const auto& editor : m_editors) {
        for (const SlotControl& entry : editor->Controls()) {
            const bool isKept
                = m_marked.contains(entry.control) || m_record.Compare(entry.slot, style.lsGet(entry.slot));
            if (!isKept)
                style.lsSet(entry.slot, Value::Null());
        }
    }
}

bool PropertyPanel::IsEdited(qint16 slot) const
{
    const std::optional<SlotControl> entry = ControlOf(slot);
    return entry && m_marked.contains(entry->control);
}

std::optional<SlotControl> PropertyPanel::ControlOf(qint16 slot) const
{
    for (const auto& editor : m_editors) {
        for (const SlotControl& entry : editor->Controls()) {
            if (entry.slot == slot)
                return entry;
        }
    }
    return std::nullopt;
}

bool PropertyPanel::ControlValueChanged(const QWidget* control) const
{
    for (const auto& editor : m_editors) {
        LayerStyle shown;
        bool isRead = false;
        for (const SlotControl& entry : editor->Controls()) {
            if (entry.control != control)
                continue;
            if (!std::exchange(isRead, true))
                editor->Read(shown);
            if (!m_record.Compare(entry.slot, shown.lsGet(entry.slot)))
                return true;
        }
    }
    return false;
}

void PropertyPanel::Retranslate()
{
    const QScopedValueRollback showing(m_showing, true);
    for (const auto& editor : m_editors)
        editor->Retranslate();
}

void PropertyPanel::MarkControlChanged(QWidget* control, bool changed)
{
    if (m_marked.contains(control) != changed)
        Underline(*control, changed);
    if (changed)
        m_marked.insert(control);
    else
        m_marked.remove(control);
    Speak(*control);
    if (changed)
        emit Edited();
}

void PropertyPanel::ClearMarks()
{
    for (QWidget* control : std::exchange(m_marked, {})) {
        Underline(*control, false);
        Speak(*control);
    }
}

// Screen readers do not read an underline, nor the text of a label that never has the focus.
void PropertyPanel::Speak(QWidget& control) const
{
    QWidget* speaker = m_speakers.value(&control);
    QStringList state;
    if (const auto* label = qobject_cast<const QLabel*>(&control); speaker && label)
        state.append(label->text());
    if (m_marked.contains(&control))
        state.append(TranslateMsg("changed"));
    if (!speaker)
        speaker = control.focusProxy() ? control.focusProxy() : &control;
    speaker->setAccessibleDescription(state.join(QStringLiteral(", ")));
}

} // namespace Orvane
