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
/// Whatever the file is - missing, empty, cut, random bytes, huge - reading it never fails and never raises;
/// what could be read before the damage is dropped with the rest, so a damaged file gives an empty catalogue.
/// Entries that are unfinished, vanished or obsolete do not count, nor do empty translations and plural
/// forms.
class MessageCatalogue
{
public:
    /// A larger file is not read, in bytes.
    static constexpr qint64 MaximumSize = qint64(8) << 20;

    static MessageCatalogue FromFile(const QString& path);
    /// As FromFile, from a device that is open for reading.
    static MessageCatalogue FromDevice(QIODevice& device);

    /// The translation of an English text in a context, or the text itself. An empty context asks all of
    /// them.
    QString Translate(const QString& text, const QString& context = {}) const;

    /// As Translate, and nothing where there is no entry.
    std::optional<QString> Find(const QString& text, const QString& context = {}) const;

    bool IsEmpty() const { return m_inContext.isEmpty(); }
    /// The number of entries; a text in two contexts counts twice.
    qsizetype Count() const { return m_inContext.size(); }

    /// Adds an entry. The first entry of a text in a context stays, and so does the first of a text in all of
    /// them.
    void Add(const QString& context, const QString& text, const QString& translation);

private:
    QHash<QString, QString> m_inContext; // key: context, U+0004, text
    QHash<QString, QString> m_anywhere; // key: text
};

} // namespace Orvane
