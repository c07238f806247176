// SPDX-License-Identifier: MIT
#pragma once

#include "messages/MessageCatalogue.h"

#include <QString>

#include <vector>

class QWidget;

namespace Orvane {

/// Which entries of the message file may translate a text.
enum class MessageContext {
    Any = 0, ///< all of them, whatever their context in the file: the key is the English text alone
};

/// The component's translations, keyed by the English texts, placeholders included. Without a file, or with a
/// damaged one, it is empty, and every text stays English.
class MessageTable
{
public:
    /// Replaces the table by the file's entries. Never fails: a file that cannot be read leaves the table
    /// empty.
    void LoadFile(const QString& path);

    /// Replaces the table by these; the first that has a text translates it.
    void Load(std::vector<MessageCatalogue> catalogues) { m_catalogues = std::move(catalogues); }

    /// The translation of an English text, or the text itself.
    QString Translate(const QString& text, MessageContext context = MessageContext::Any) const;

    /// Translates the texts of the form and of all widgets and actions in it: captions of labels, buttons and
    /// group boxes, tab texts, window titles, tool tips, what's-this and status texts, accessible names and
    /// descriptions, placeholders, prefixes and suffixes, a "caption" or "Caption" property of the
    /// component's own controls, and the items of combo boxes that have the property "staticItems" = true. A
    /// widget with the property "notr" = true is skipped.
    ///
    /// The English text of each is stored with it, so that a later call translates from English again. A text
    /// that differs from what the last call showed was set by the program and is not changed.
    void TranslateForm(QWidget& form) const;

private:
    std::vector<MessageCatalogue> m_catalogues;
};

} // namespace Orvane
