// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

/// A name as one line of at most `longest` characters, for lists, menus and questions: line breaks and other
/// control characters become blanks, and a longer name ends in an ellipsis. Ordinary names are not changed.
QString NameInText(const QString& name, qsizetype longest = 60);

/// The same, at most 80 characters, for a question about that name.
QString NameInQuestion(const QString& name);

/// The same, at most 40 characters, for lists of names and for the text after "Undo".
QString NameInStep(const QString& name);

/// The same for a menu, where an ampersand would mark a mnemonic.
QString NameInMenu(const QString& name);

} // namespace Orvane
