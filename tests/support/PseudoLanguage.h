// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace Orvane::Testing {

/// The text in the pseudo-language: in brackets and longer by half, with placeholders and mnemonic. A text
/// shown without brackets was not translated; a text that is cut off had too little room. A text without a
/// word, such as "1:^1", is the same in every language.
QString Pseudo(const QString& english);

/// A Qt Linguist document that translates every text of the component's German catalogue into the
/// pseudo-language.
QByteArray PseudoCatalogue();

/// Shows the component in the pseudo-language during its lifetime, and in English again afterwards.
class PseudoLanguage
{
public:
    PseudoLanguage();
    ~PseudoLanguage();
    PseudoLanguage(const PseudoLanguage&) = delete;
    PseudoLanguage& operator=(const PseudoLanguage&) = delete;
};

} // namespace Orvane::Testing
