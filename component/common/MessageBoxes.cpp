// SPDX-License-Identifier: MIT
#include "component/common/MessageBoxes.h"

#include "component/common/Messages.h"

#include <QAbstractButton>
#include <QMessageBox>
#include <QPointer>

namespace Orvane {

namespace {

bool IsQuestion(BoxStyle style)
{
    return style == BoxStyle::YesNo || style == BoxStyle::YesNoQuestion;
}

QMessageBox::Icon IconOf(BoxStyle style)
{
    switch (style) {
    case BoxStyle::OkInformation:
        return QMessageBox::Information;
    case BoxStyle::OkExclamation:
    case BoxStyle::TryAgainExclamation:
        return QMessageBox::Warning;
    case BoxStyle::YesNoQuestion:
        return QMessageBox::Question;
    case BoxStyle::Ok:
    case BoxStyle::YesNo:
        break;
    }
    return QMessageBox::NoIcon;
}

// The toolkit's own button texts come from the host's translators, which may not contain them.
QPushButton* AddButton(QMessageBox& box, QMessageBox::StandardButton kind, const QString& text)
{
    QPushButton* button = box.addButton(kind);
    box.button(kind)->setText(text);
    return button;
}

// The first button is the default.
void AddPair(
    QMessageBox& box, QMessageBox::StandardButton first, const QString& firstText,
    QMessageBox::StandardButton escape, const QString& escapeText)
{
    box.setDefaultButton(AddButton(box, first, firstText));
    AddButton(box, escape, escapeText);
    box.setEscapeButton(escape);
}

void AddButtons(QMessageBox& box, BoxStyle style)
{
    if (IsQuestion(style))
        return AddPair(box, QMessageBox::Yes, TranslateMsg("&Yes"), QMessageBox::No, TranslateMsg("&No"));
    if (style == BoxStyle::TryAgainExclamation)
        return AddPair(
            box, QMessageBox::Retry, TranslateMsg("&Try Again"), QMessageBox::Close, TranslateMsg("&Close"));
    box.setDefaultButton(AddButton(box, QMessageBox::Ok, TranslateMsg("OK")));
    box.setEscapeButton(QMessageBox::Ok);
}

BoxAnswer AnswerOf(BoxStyle style, int pressed)
{
    if (IsQuestion(style))
        return pressed == QMessageBox::Yes ? BoxAnswer::Yes : BoxAnswer::No;
    if (style == BoxStyle::TryAgainExclamation)
        return pressed == QMessageBox::Retry ? BoxAnswer::TryAgain : BoxAnswer::Close;
    return BoxAnswer::Ok;
}

QMessageBox* MakeBox(QWidget* owner, const QString& text, BoxStyle style)
{
    auto* box = new QMessageBox(
        IconOf(style), TranslateMsg("Layer Control"), text, QMessageBox::NoButton,
        owner ? owner->window() : nullptr);
    box->setTextFormat(Qt::PlainText); // a name such as <No Name> is not markup
    AddButtons(*box, style);
    return box;
}

} // namespace

BoxAnswer ShowMessageBox(QWidget* owner, const QString& translatedText, BoxStyle style)
{
    // The host may destroy the owner, and the box with it, while the box waits.
    const QPointer<QMessageBox> box = MakeBox(owner, translatedText, style);
    const int pressed = box->exec();
    delete box;
    return AnswerOf(style, pressed);
}

} // namespace Orvane
