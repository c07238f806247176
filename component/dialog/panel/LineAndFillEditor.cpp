// SPDX-License-Identifier: MIT
#include "component/dialog/panel/LineAndFillEditor.h"

#include "component/model/LayerStyle.h"
#include "ovctrls/OvCombo.h"

#include <QEvent>
#include <QLabel>

namespace Orvane {

namespace {

StylePickers::Lists ListsOf(const LineAndFillEditor::Rows& rows)
{
    return {
        {rows.lineColour.list, rows.fillForeColour.list, rows.fillBackColour.list},
        rows.fillStyle.list,
        rows.lineStyle.list};
}

qint16 ColourSlot(int index)
{
    return qint16(Slot::LineColour + index);
}

bool Differs(const LayerStyle& record, const LayerStyle& shown, qint16 slot)
{
    return !record.Compare(slot, shown.lsGet(slot));
}

} // namespace

LineAndFillEditor::LineAndFillEditor(const Rows& rows, const QString& stylePrefix)
    : m_rows(rows), m_pickers(ListsOf(rows), stylePrefix)
{
    // Not guarded: the pickers are guarded, and in a call from the host the host gets the error.
    connect(&m_pickers, &StylePickers::Changed, this, [this](OvCombo* list) { NotifyChanged(list); });
    for (const Row& row :
         {rows.lineColour, rows.fillForeColour, rows.fillBackColour, rows.fillStyle, rows.lineStyle})
        row.list->installEventFilter(this);
}

std::vector<SlotControl> LineAndFillEditor::Controls() const
{
    return {{Slot::LineColour, m_rows.lineColour.list},
            {Slot::FillForeColour, m_rows.fillForeColour.list},
            {Slot::FillBackColour, m_rows.fillBackColour.list},
            {Slot::OutlineStyle, m_rows.lineStyle.list},
            {Slot::FillStyle, m_rows.fillStyle.list},
            {Slot::LineThickness, m_rows.lineStyle.list}};
}

void LineAndFillEditor::Fill()
{
    m_pickers.Build();
}

void LineAndFillEditor::Show(const LayerStyle& record, const LayerStyle& shown)
{
    ShowRecord(record);
    for (int index = 0; index < StylePickers::ColourCount; ++index) {
        if (Differs(record, shown, ColourSlot(index)))
            m_pickers.Colour(index).ShowEdit(shown.lsGet(ColourSlot(index)));
    }
    if (Differs(record, shown, Slot::FillStyle))
        m_pickers.FillStyles().ShowEdit(shown.lsGet(Slot::FillStyle));
    if (Differs(record, shown, Slot::OutlineStyle) || Differs(record, shown, Slot::LineThickness))
        m_pickers.LineStyles().ShowEdit(shown.lsGet(Slot::OutlineStyle), shown.lsGet(Slot::LineThickness));
}

void LineAndFillEditor::ShowRecord(const LayerStyle& record)
{
    for (int index = 0; index < StylePickers::ColourCount; ++index)
        m_pickers.Colour(index).SetColourSelection(record.lsGet(ColourSlot(index)));
    m_pickers.FillStyles().SetFillStyleSelection(record.lsGet(Slot::FillStyle));
    m_pickers.LineStyles().SetLineStyleSelection(
        record.lsGet(Slot::OutlineStyle), record.lsGet(Slot::LineThickness));
}

void LineAndFillEditor::Read(LayerStyle& style) const
{
    const SelectedLine line = m_pickers.LineStyles().GetSelectedLineStyle();
    style.lsSet(Slot::OutlineStyle, line.style);
    style.lsSet(Slot::LineThickness, line.thickness);
    style.lsSet(Slot::FillStyle, m_pickers.FillStyles().GetSelectedFillStyle());
    for (int index = 0; index < StylePickers::ColourCount; ++index)
        style.lsSet(ColourSlot(index), m_pickers.Colour(index).GetSelectedColour());
}

void LineAndFillEditor::Retranslate()
{
    m_pickers.Rebuild();
}

bool LineAndFillEditor::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::FontChange)
        return false;
    for (const Row& row :
         {m_rows.lineColour, m_rows.fillForeColour, m_rows.fillBackColour, m_rows.fillStyle,
          m_rows.lineStyle}) {
        if (row.list != watched || !row.caption)
            continue;
        QFont mark;
        if (row.list->font().underline())
            mark.setUnderline(true);
        row.caption->setFont(mark);
    }
    return false;
}

} // namespace Orvane
