// SPDX-License-Identifier: MIT
#include "component/styles/LineStylePicker.h"

#include "component/common/EventGuard.h"
#include "component/styles/ItemDescriptions.h"
#include "component/styles/TranslatedStyleWords.h"
#include "ovctrls/OvCombo.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <QEvent>
#include <QPointer>

namespace Orvane {

namespace {

using Special = PickerList::Special;

// Where the width dialog opens: one box height below the combo box.
TwipPoint DialogPlace(const OvCombo& combo)
{
    const QPoint topLeft = combo.mapToGlobal(QPoint(0, 2 * combo.height()));
    return TwipsPerPixelOf(combo).ToTwips(topLeft);
}

// The line for an item's data.
LineItem LineOf(qint32 itemData)
{
    const SelectedLine line = ReadSelectedLine(0, -1, itemData);
    return {ToInt16(line.style), ToInt16(line.thickness)};
}

} // namespace

LineStylePicker::LineStylePicker(OvCombo& combo, const QString& stylePrefix, AskLineWidth askLineWidth)
    : m_list(combo), m_stepOver(combo, [this] { return m_list.IndexOf(Special::Custom); }),
      m_stylePrefix(stylePrefix), m_askLineWidth(std::move(askLineWidth))
{
    combo.SetRenderer(StyleStringRenderer(stylePrefix));
    connect(&combo, QOverload<int>::of(&OvCombo::activated), this, &LineStylePicker::OnPicked);
    combo.installEventFilter(this);
}

void LineStylePicker::BuildLineStyleList()
{
    m_list.Clear();
    for (const LineItem& line : StandardLineItems)
        AddLineStyleItem(line.style, line.thickness);
    m_list.AddSpecial(Special::Custom, CustomCaption());
}

QString LineStylePicker::CustomCaption() const
{
    return StyleStrings(m_stylePrefix, TranslatedStyleWords()).CustomLineCaption();
}

void LineStylePicker::AddLineStyleItem(qint16 style, qint16 thickness, qint32 position)
{
    const PickerList::ItemTexts item = ItemOf({style, thickness});
    m_list.Add(item.text, item.description, LineStyleItemData(style, thickness), position);
    m_list.SetRows(m_list.Count() + 1);
}

PickerList::ItemTexts LineStylePicker::ItemOf(const LineItem& line) const
{
    const StyleStrings strings(m_stylePrefix, TranslatedStyleWords());
    return {strings.LineItemText(line, LineExtentOf(m_list.Size())), LineDescription(line)};
}

void LineStylePicker::SetLineStyleSelection(const Value& style, const Value& thickness)
{
    ShowLayerLine(style, thickness);
    m_layerValue = {style, thickness};
    if (!m_list.IsSelected(Special::Various)) {
        m_list.RemoveVarious();
        m_list.SetRows(m_list.Count() + 1);
    }
    emit Changed();
}

void LineStylePicker::ShowEdit(const Value& style, const Value& thickness)
{
    ShowLayerLine(style, thickness);
    emit Changed();
}

void LineStylePicker::ShowLayerLine(const Value& style, const Value& thickness)
{
    const qint16 number = style.IsNull() ? qint16(0) : ToInt16(style);
    const qint32 data = LineStyleItemData(number, thickness.IsNull() ? qint16(0) : ToInt16(thickness));
    const bool isTold = LineOf(data).style == number;
    if (style.IsNull() || thickness.IsNull() || !isTold)
        ShowVarious();
    else
        ShowLine({number, ToInt16(thickness)});
}

void LineStylePicker::ShowLine(const LineItem& line)
{
    const qint32 data = LineStyleItemData(line.style, line.thickness);
    if (m_list.Find(data) < 0)
        AddBeforeCustom(line);
    m_list.Select(m_list.Find(data));
}

void LineStylePicker::ShowVarious()
{
    AddVariousItem();
    m_list.Select(Special::Various);
}

void LineStylePicker::AddVariousItem()
{
    m_list.AddVarious();
    m_list.SetRows(m_list.Count() + 1);
}

void LineStylePicker::AddBeforeCustom(const LineItem& line)
{
    AddLineStyleItem(line.style, line.thickness, m_list.IndexOf(Special::Custom));
}

SelectedLine LineStylePicker::GetSelectedLineStyle() const
{
    if (m_list.Selected() < 0)
        return {Value::Null(), Value::Null()};
    return ReadSelectedLine(m_list.Selected(), m_list.IndexOf(Special::Various), m_list.SelectedData());
}

void LineStylePicker::Rebuild()
{
    m_list.Redraw([this](qint32 data) { return ItemOf(LineOf(data)); }, CustomCaption());
}

// The items were drawn for the previous size of the combo box.
bool LineStylePicker::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        GuardEvent(m_list.Combo().window(), [this] { Rebuild(); });
    return false;
}

void LineStylePicker::OnPicked()
{
    QWidget* owner = m_list.Combo().window();
    if (m_list.IsSelected(Special::Custom))
        GuardAfterEvent(this, owner, [this] { ChooseCustomWidth(); });
    else
        GuardEvent(owner, [this] { emit Changed(); });
}

void LineStylePicker::ChooseCustomWidth()
{
    const QPointer<LineStylePicker> self(this);
    const TwipPoint place = DialogPlace(m_list.Combo());
    qint16 thickness = 0;
    bool isChosen = false;
    try {
        isChosen = m_askLineWidth(thickness, place.x, place.y);
    } catch (...) {
        if (self)
            ShowLayerValue();
        throw;
    }
    if (!self)
        return;
    if (!isChosen) {
        ShowLayerValue();
        return;
    }
    ShowLine({0, thickness});
    emit Changed();
}

void LineStylePicker::ShowLayerValue()
{
    SetLineStyleSelection(m_layerValue.style, m_layerValue.thickness);
}

} // namespace Orvane
