// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/Value.h>

#include <QString>

#include <vector>

class QWidget;

namespace Orvane {

/// Arguments of a message in placeholder order, "^1" first; an Empty value counts as not supplied.
using MessageArguments = std::vector<Value>;

/// The text to show for an English text: its translation, with the placeholders filled in. Every text that a
/// person sees goes through here at the moment it is shown. Never fails: without a translation the English
/// text is used.
///
/// The text is a literal in the call, which is how the check of the catalogues finds it. A text that reaches
/// the call through a variable stands in QT_TR_NOOP("...") where it is written.
QString TranslateMsg(const QString& text, const MessageArguments& arguments = {});

/// As above, with the arguments in place.
template <typename... Arguments>
requires(sizeof...(Arguments) > 0) QString TranslateMsg(const QString& text, const Arguments&... arguments)
{
    return TranslateMsg(text, MessageArguments{Value(arguments)...});
}

/// Translates the captions, tool tips and accessible names of the form and of all controls in it. The English
/// texts are kept, so that it may be called again after a change of language; a text that the program has set
/// since the last call is left alone. MessageTable::TranslateForm lists the texts.
void TranslateForm(QWidget& form);

/// Reads the message file of the current locale anew. A window calls it, and then TranslateForm, when it gets
/// QEvent::LanguageChange or QEvent::LocaleChange, and shows its other texts again.
void ReloadMessages();

} // namespace Orvane
