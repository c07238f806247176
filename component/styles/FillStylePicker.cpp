// SPDX-License-Identifier: MIT
#include "component/styles/FillStylePicker.h"

#include "component/common/Component.h"
#include "component/common/EventGuard.h"
#include "component/common/MessageBoxes.h"
#include "component/common/Messages.h"
#include "component/styles/ItemDescriptions.h"
#include "component/styles/TranslatedStyleWords.h"
#include "ovctrls/OvCombo.h"

#include <OrvaneShellLib/IShellServices.h>
#include <OrvaneShellLib/LayerValues.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QPainter>

namespace Orvane {

namespace {

using Special = PickerList::Special;

constexpr int mostRows = 10;

bool AreSame(const FillColours& left, const FillColours& right)
{
    return left.line == right.line && left.fore == right.fore && left.back == right.back;
}

} // namespace

FillStylePicker::FillStylePicker(OvCombo& combo, const QString& stylePrefix, ReadColours colours)
    : m_list(combo), m_stylePrefix(stylePrefix), m_colours(std::move(colours))
{
    combo.SetRenderer(StyleStringRenderer(stylePrefix));
    connect(&combo, QOverload<int>::of(&OvCombo::activated), this, [this] {
        GuardEvent(m_list.Combo().window(), [this] { emit Changed(); });
    });
    connect(&combo, &OvCombo::DrawItem, this, [this](QPainter& painter, int index, const QRect& item) {
        GuardPaint([&] { PaintItem(painter, index, item); });
    });
}

void FillStylePicker::BuildFillStyleList()
{
    m_list.Clear();
    AddFillStyleItem(SolidFill);
    AddFillStyleItem(HollowFill);
    for (qint16 style = 0; style < FillPictures::Count; ++style) {
        if (style == SolidFill || style == HollowFill)
            continue;
        LoadPicture(style);
        AddFillStyleItem(style);
    }
    FitRows();
}

void FillStylePicker::AddFillStyleItem(qint16 style)
{
    const PickerList::ItemTexts item = ItemOf(style);
    m_list.Add(item.text, item.description, style);
}

PickerList::ItemTexts FillStylePicker::ItemOf(qint32 style) const
{
    return {StyleStrings(m_stylePrefix, TranslatedStyleWords()).FillItem(), FillDescription(style)};
}

void FillStylePicker::FitRows()
{
    m_list.SetRows(std::min(m_list.Count() + 1, mostRows));
}

void FillStylePicker::LoadPicture(qint16 style)
{
    m_pictures.Load(style);
    m_pictures.SetPicture(style, ShellServices().FillPattern(FillPatternKind, style));
}

void FillStylePicker::AddVariousItem()
{
    m_list.AddVarious();
    FitRows();
}

void FillStylePicker::SetFillStyleSelection(const Value& value)
{
    const bool isKnown = ShowStyle(value);
    if (!value.IsNull()) {
        m_list.RemoveVarious();
        FitRows();
    }
    if (!isKnown)
        ReportUnknownStyle();
    emit Changed();
}

void FillStylePicker::ShowEdit(const Value& value)
{
    ShowStyle(value);
    emit Changed();
}

bool FillStylePicker::ShowStyle(const Value& value)
{
    if (value.IsNull()) {
        AddVariousItem();
        m_list.Select(Special::Various);
        return true;
    }
    const int index = m_list.Find(ToInt32(value));
    m_list.Select(std::max(index, 0));
    return index >= 0;
}

// Queued: while the message box waits, nothing may be half shown, and the host may close the dialog.
void FillStylePicker::ReportUnknownStyle()
{
    QMetaObject::invokeMethod(
        this,
        [this] {
            QWidget* window = m_list.Combo().window();
            GuardEvent(window, [window] {
                ShowMessageBox(window, TranslateMsg("Unknown Fill Style!"), BoxStyle::Ok);
            });
        },
        Qt::QueuedConnection);
}

Value FillStylePicker::GetSelectedFillStyle() const
{
    if (m_list.Selected() < 0 || m_list.IsSelected(Special::Various))
        return Value::Null();
    return m_list.SelectedData();
}

void FillStylePicker::Rebuild()
{
    m_list.Redraw([this](qint32 style) { return ItemOf(style); }, QString());
}

void FillStylePicker::FollowColours()
{
    if (!m_painted || !AreSame(*m_painted, m_colours()))
        m_list.Combo().update();
}

void FillStylePicker::PaintItem(QPainter& painter, int index, const QRect& item)
{
    const qint32 style = m_list.Combo().ItemData(index);
    const FillColours colours = m_colours();
    PaintFillItem(
        painter, item, {style, m_pictures.Picture(style), colours, ShellServices().ListBackColour()});
    if (painter.device() == &m_list.Combo())
        m_painted = colours;
}

} // namespace Orvane
