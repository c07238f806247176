// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QWidget;

namespace Orvane {

/// The buttons and the icon of a message box. The first button is the default. Escape means No or Close, or
/// Ok if there is neither.
enum class BoxStyle {
    Ok, ///< OK, no icon
    OkInformation,
    OkExclamation,
    YesNo, ///< Yes and No, no icon
    YesNoQuestion,
    TryAgainExclamation, ///< Try Again and Close
};

enum class BoxAnswer { Ok, Yes, No, TryAgain, Close };

/// Shows a message box over the owner's window, titled "Layer Control" in the user's language, and waits for
/// the answer. All message boxes of the component are shown by this function. owner: may be nullptr, and may
/// be destroyed while the box waits; the answer is then that of Escape. translatedText: a result of
/// TranslateMsg; shown as plain text.
BoxAnswer ShowMessageBox(QWidget* owner, const QString& translatedText, BoxStyle style);

} // namespace Orvane
