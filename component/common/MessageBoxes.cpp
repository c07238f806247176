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

void AddButtons(QMessageBox& box, BoxStyle style)
{
    if (!IsQuestion(style)) {
        box.setDefaultButton(AddButton(box, QMessageBox::Ok, TranslateMsg("OK")));
        box.setEscapeButton(QMessageBox::Ok);
        return;
    }
    box.setDefaultButton(AddButton(box, QMessageBox::Yes, TranslateMsg("&Yes")));
    AddButton(box, QMessageBox::No, TranslateMsg("&No"));
    box.setEscapeButton(QMessageBox::No);
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
    if (!IsQuestion(style))
        return BoxAnswer::Ok;
    return pressed == QMessageBox::Yes ? BoxAnswer::Yes : BoxAnswer::No;
}

} // namespace Orvane
