// SPDX-License-Identifier: MIT
#include "component/dialog/PropertyPanel.h"

#include "component/entry/Messages.h"

#include <QFont>
#include <QScopedValueRollback>
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
    // An underline says nothing to someone who listens.
    QWidget& spoken = control.focusProxy() ? *control.focusProxy() : control;
    spoken.setAccessibleDescription(underlined ? TranslateMsg("changed") : QString());
}

} // namespace

PropertyPanel::PropertyPanel(QObject* parent) : QObject(parent)
{
}

PropertyPanel::~PropertyPanel() = default;

void PropertyPanel::Join(std::unique_ptr<PropertyEditor> editor)
{
    editor->SetChangeHandler([this](QWidget* control) {
        if (!m_showing)
            MarkControlChanged(control, ControlValueChanged(control));
    });
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

void PropertyPanel::Show(const LayerStyle& record)
{
    // A maximum scale of 256 reads back as 0, so marks are not to be trusted while values are being shown.
    const QScopedValueRollback showing(m_showing, true);
    m_record = record;
    for (const auto& editor : m_editors)
        editor->Show(m_record);
    ClearMarks();
}

void PropertyPanel::ReadPanelStyle(LayerStyle& style) const
{
    for (const auto& editor : m_editors)
        editor->Read(style);
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
    if (!changed) {
        m_marked.remove(control);
        return;
    }
    m_marked.insert(control);
    emit Edited();
}

void PropertyPanel::ClearMarks()
{
    for (QWidget* control : std::exchange(m_marked, {}))
        Underline(*control, false);
}

} // namespace Orvane
