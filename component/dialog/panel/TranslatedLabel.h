// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/Value.h>

#include <QString>

#include <functional>

class QLabel;

namespace Orvane {

class IUITranslator;

/// A label whose caption shows a value as text, through a translator. The value is read back from the
/// caption, so a value whose text means another value becomes that other value.
class TranslatedLabel
{
public:
    /// label, translator: not owned; outlive this object.
    TranslatedLabel(QLabel& label, const IUITranslator& translator);

    /// Sets the handler to call each time the caption is set, even to the same text.
    void SetChangeHandler(std::function<void()> handler) { m_changed = std::move(handler); }

    /// Sets the caption to the value's text.
    void Set(const Value& value);

    /// The value that the caption means; Null for an empty caption. Raises 13 (type mismatch) for a text that
    /// is not a value.
    Value Read() const;

    /// Shows the last value again in the current language.
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
