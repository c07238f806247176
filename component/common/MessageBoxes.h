// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QWidget;

namespace Orvane {

/// The buttons and the icon of a message box. The first button is the default; Escape answers No, or Ok where
/// there is no No.
enum class BoxStyle {
    Ok, ///< OK, no icon
    OkInformation,
    OkExclamation,
    YesNo, ///< Yes and No, no icon
    YesNoQuestion,
};

enum class BoxAnswer { Ok, Yes, No };

/// Shows a message box over the owner's window, titled "Layer Control" in the person's language, and waits
/// for the answer: the one door for all message boxes of the component. owner: may be nullptr, and may be
/// destroyed while the box waits, which answers as Escape does. translatedText: a result of TranslateMsg;
/// shown as plain text.
BoxAnswer ShowMessageBox(QWidget* owner, const QString& translatedText, BoxStyle style);

} // namespace Orvane
