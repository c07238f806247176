// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>

#include <optional>

class QIODevice;

namespace Orvane {

/// Translations read from one Qt Linguist document (.ts): finished entries only.
///
///     MessageCatalogue catalogue = MessageCatalogue::FromFile(path);
///     QString shown = catalogue.Translate("Delete");  // "Delete" where there is no entry
///
/// Whatever the file contains, reading it never fails and never raises, even if it is missing, empty,
/// truncated, random bytes or huge. A damaged file gives an empty catalogue: anything read before the damage
/// is discarded too. Unfinished, vanished and obsolete entries are ignored, and so are empty translations and
/// plural forms.
class MessageCatalogue
{
public:
    /// In bytes; a larger file is not read.
    static constexpr qint64 MaximumSize = qint64(8) << 20;

    /// The translations of a file; one that cannot be read gives an empty catalogue.
    static MessageCatalogue FromFile(const QString& path);
    /// As FromFile, from a device that is open for reading.
    static MessageCatalogue FromDevice(QIODevice& device);

    /// The translation of an English text in a context, or the text itself. An empty context searches all
    /// contexts.
    QString Translate(const QString& text, const QString& context = {}) const;

    /// As Translate, but returns nothing if there is no entry.
    std::optional<QString> Find(const QString& text, const QString& context = {}) const;

    /// True if there is no translation.
    bool IsEmpty() const { return m_inContext.isEmpty(); }
    /// The number of entries; a text in two contexts counts twice.
    qsizetype Count() const { return m_inContext.size(); }

    /// Adds an entry. The first entry for a text in a context is kept, and so is the first one for a text in
    /// any context.
    void Add(const QString& context, const QString& text, const QString& translation);

private:
    QHash<QString, QString> m_inContext; // key: context, U+0004, text
    QHash<QString, QString> m_anywhere; // key: text
};

} // namespace Orvane
