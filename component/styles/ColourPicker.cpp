// SPDX-License-Identifier: MIT
#include "component/styles/ColourPicker.h"

#include "component/common/EventGuard.h"
#include "component/common/Messages.h"
#include "component/styles/ChooseColour.h"
#include "component/styles/ItemDescriptions.h"
#include "component/styles/StandardColours.h"
#include "component/styles/TranslatedStyleWords.h"
#include "ovctrls/OvCombo.h"
#include "samples/BgrColour.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <QEvent>
#include <QPointer>

namespace Orvane {

namespace {

using Special = PickerList::Special;

} // namespace

ColourPicker::ColourPicker(OvCombo& combo, const QString& stylePrefix, Offer offer)
    : m_list(combo), m_stepOver(combo, [this] { return m_list.IndexOf(Special::Custom); }),
      m_stylePrefix(stylePrefix), m_offer(offer)
{
    combo.SetRenderer(StyleStringRenderer(stylePrefix));
    connect(&combo, QOverload<int>::of(&OvCombo::activated), this, &ColourPicker::OnPicked);
    combo.installEventFilter(this);
}

void ColourPicker::BuildColourList()
{
    m_list.Clear();
    for (const StandardColour& standard : standardColours)
        AddColourItem(standard.colour);
    if (m_offer == Offer::ColoursAndTransparent)
        AddColourItem(TransparentColour);
    m_list.AddSpecial(Special::Custom, TranslateMsg("Custom Colour..."));
    FitRows();
}

void ColourPicker::AddColourItem(qint32 colour, qint32 position)
{
    const PickerList::ItemTexts item = ItemOf(colour);
    m_list.Add(item.text, item.description, colour, position);
    FitRows();
}

PickerList::ItemTexts ColourPicker::ItemOf(qint32 colour) const
{
    const StyleStrings strings(m_stylePrefix, TranslatedStyleWords());
    return {strings.ColourItem(colour, SwatchExtentOf(m_list.Size())), ColourDescription(colour)};
}

void ColourPicker::FitRows()
{
    m_list.SetRows(m_list.Count() + 2);
}

void ColourPicker::SetColourSelection(const Value& value)
{
    ShowColour(value);
    m_layerValue = value;
    if (!value.IsNull()) {
        m_list.RemoveVarious();
        FitRows();
    }
    emit Changed();
}

void ColourPicker::ShowEdit(const Value& value)
{
    ShowColour(value);
    emit Changed();
}

Value ColourPicker::GetSelectedColour() const
{
    if (m_list.Selected() < 0 || m_list.IsSelected(Special::Various))
        return Value::Null();
    return m_list.SelectedData();
}

void ColourPicker::ShowColour(const Value& value)
{
    if (value.IsNull()) {
        AddVariousItem();
        m_list.Select(Special::Various);
    } else {
        const qint32 colour = ListedColour(ToInt32(value));
        if (m_list.Find(colour) < 0)
            AddBeforeCustom(colour);
        m_list.Select(m_list.Find(colour));
    }
    m_shown = GetSelectedColour();
}

void ColourPicker::AddVariousItem()
{
    m_list.AddVarious();
    FitRows();
}

void ColourPicker::AddBeforeCustom(qint32 colour)
{
    AddColourItem(colour, m_list.IndexOf(Special::Custom));
}

void ColourPicker::Rebuild()
{
    m_list.Redraw([this](qint32 colour) { return ItemOf(colour); }, TranslateMsg("Custom Colour..."));
}

// The items were drawn for the previous size of the combo box.
bool ColourPicker::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        GuardEvent(m_list.Combo().window(), [this] { Rebuild(); });
    return false;
}

void ColourPicker::OnPicked()
{
    QWidget* owner = m_list.Combo().window();
    if (m_list.IsSelected(Special::Custom)) {
        GuardAfterEvent(this, owner, [this] { ChooseCustomColour(); });
        return;
    }
    GuardEvent(owner, [this] {
        m_shown = GetSelectedColour();
        emit Changed();
    });
}

void ColourPicker::ChooseCustomColour()
{
    const qint32 start = m_layerValue.IsNull() ? 0 : ToInt32(m_layerValue);
    const QPointer<ColourPicker> self(this);
    const std::optional<qint32> chosen = ChooseColour(m_list.Combo().window(), start);
    if (!self)
        return;
    ShowColour(chosen ? Value(*chosen) : m_shown);
    emit Changed();
}

} // namespace Orvane
