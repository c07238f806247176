// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace Orvane::Testing {

/// The text in the pseudo-language: bracketed and longer by half, placeholders and the mnemonic kept. What is
/// shown without brackets was not translated; what is cut had too little room. A text without a word, as
/// "1:^1", is the same in every language.
QString Pseudo(const QString& english);

/// A Qt Linguist document that translates every text of the component's German catalogue into the
/// pseudo-language.
QByteArray PseudoCatalogue();

/// Makes the component speak the pseudo-language while it lives, and English again afterwards.
class PseudoLanguage
{
public:
    PseudoLanguage();
    ~PseudoLanguage();
    PseudoLanguage(const PseudoLanguage&) = delete;
    PseudoLanguage& operator=(const PseudoLanguage&) = delete;
};

} // namespace Orvane::Testing
