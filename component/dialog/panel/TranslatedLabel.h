// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/Value.h>

#include <QString>

#include <functional>

class QLabel;

namespace Orvane {

class IUITranslator;

/// A label whose caption is a value's text, through a translator. The caption is what counts: it is read
/// back, so that a value whose text means another value becomes that one.
class TranslatedLabel
{
public:
    /// label, translator: not owned; outlive this object.
    TranslatedLabel(QLabel& label, const IUITranslator& translator);

    /// Who is told each time the caption is set, to the same text too.
    void SetChangeHandler(std::function<void()> handler) { m_changed = std::move(handler); }

    /// Sets the caption to the value's text.
    void Set(const Value& value);

    /// The value that the caption stands for; Null for an empty one. Raises 13 (type mismatch) for a text
    /// that is no value.
    Value Read() const;

    /// Writes the last value anew in the present language.
    void Retranslate();

    QLabel& Label() const { return m_label; }
    const IUITranslator& Translator() const { return m_translator; }

private:
    QLabel& m_label;
    const IUITranslator& m_translator;
    Value m_value;
    std::function<void()> m_changed;
};

} // namespace Orvane
