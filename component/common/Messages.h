// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/Value.h>

#include <QString>

#include <vector>

class QWidget;

namespace Orvane {

/// Arguments of a message in placeholder order, "^1" first; an Empty value counts as not supplied.
using MessageArguments = std::vector<Value>;

/// The text to show for an English text: its translation, with the placeholders filled in. Every text that
/// the user sees is translated by this function at the moment it is shown. Never fails: without a translation
/// the English text is used.
///
/// The text must be a literal in the call, so that the check of the catalogues finds it. A text that is
/// passed in a variable must be inside QT_TR_NOOP("...") where it is written.
QString TranslateMsg(const QString& text, const MessageArguments& arguments = {});

/// As above, with the arguments listed in the call.
template <typename... Arguments>
requires(sizeof...(Arguments) > 0) QString TranslateMsg(const QString& text, const Arguments&... arguments)
{
    return TranslateMsg(text, MessageArguments{Value(arguments)...});
}

/// Translates the captions, tool tips and accessible names of the form and of all controls in it. The English
/// texts are kept, so that it may be called again after a change of language. A text that the program has set
/// since the last call is not changed. MessageTable::TranslateForm lists the texts.
void TranslateForm(QWidget& form);

/// Reads the message file of the current locale again. A window calls it when it gets QEvent::LanguageChange
/// or QEvent::LocaleChange, and then calls TranslateForm and shows its other texts again.
void ReloadMessages();

} // namespace Orvane
