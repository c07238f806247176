// SPDX-License-Identifier: MIT
#include "component/dialog/panel/PropertyTexts.h"

#include "component/common/ListHelpers.h"
#include "component/common/Messages.h"
#include "component/controls/DrawPrioritiesTranslator.h"
#include "component/controls/VisibleScalesTranslator.h"
#include "component/model/LayerStyle.h"
#include "component/styles/ItemDescriptions.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <QComboBox>
#include <QLabel>
#include <QRegularExpression>
#include <QVariant>

namespace Orvane {

namespace {

// Japanese has its mnemonics in parentheses behind the captions.
QString WithoutMarks(QString caption)
{
    static const QRegularExpression addedMnemonic(QStringLiteral(R"(\(&.\))"));
    caption.remove(addedMnemonic);
    caption.remove(u'&');
    return (caption.endsWith(u':') ? caption.chopped(1) : caption).trimmed();
}

QString LabelOf(const SlotControl& entry)
{
    for (const QLabel* label : entry.control->window()->findChildren<QLabel*>()) {
        if (label->buddy() && (label->buddy() == entry.control || label->buddy() == entry.speaker))
            return label->text();
    }
    return entry.control->accessibleName();
}

QString StyleName(const QWidget& control, qint32 number)
{
    const auto* list = qobject_cast<const QComboBox*>(&control);
    const int index = list ? FindByItemData(*list, number) : -1;
    return index < 0 ? QString::number(number) : list->itemText(index);
}

QString FlagText(bool isSet)
{
    return isSet ? TranslateMsg("yes") : TranslateMsg("no");
}

} // namespace

QString PropertyName(const SlotControl& entry)
{
    for (const char* caption : {"Caption", "caption"}) {
        const QVariant own = entry.control->property(caption);
        if (own.isValid())
            return WithoutMarks(own.toString());
    }
    return WithoutMarks(LabelOf(entry));
}

QString PropertyText(const SlotControl& entry, const Value& value)
{
    if (value.IsNull())
        return TranslateMsg("various");
    switch (entry.slot) {
    case Slot::LineColour:
    case Slot::FillForeColour:
    case Slot::FillBackColour:
        return ColourDescription(ToInt32(value));
    case Slot::OutlineStyle:
        return LineDescription({ToInt16(value), 0});
    case Slot::LineThickness:
        return LineDescription({0, ToInt16(value)});
    case Slot::FillStyle:
        return FillDescription(ToInt32(value));
    case Slot::MinVisScale:
    case Slot::MaxVisScale:
        return VisibleScalesTranslator().toString(value);
    case Slot::DrawPriority:
        return DrawPrioritiesTranslator().toString(value);
    case Slot::RendererStyle:
        return StyleName(*entry.control, ToInt32(value));
    default:
        return FlagText(ToBoolean(value));
    }
}

} // namespace Orvane
