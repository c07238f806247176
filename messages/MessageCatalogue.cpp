// SPDX-License-Identifier: MIT
#include "messages/MessageCatalogue.h"

#include "messages/LinguistReader.h"

#include <QFile>
#include <QFileInfo>

namespace Orvane {

namespace {

QString KeyInContext(const QString& context, const QString& text)
{
    return context + QChar(4) + text; // U+0004 cannot occur in an XML document
}

std::optional<QString> FindIn(const QHash<QString, QString>& texts, const QString& key)
{
    const auto found = texts.constFind(key);
    if (found == texts.constEnd())
        return std::nullopt;
    return *found;
}

} // namespace

MessageCatalogue MessageCatalogue::FromFile(const QString& path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) // a pipe would be waited for
        return {};
    return FromDevice(file);
}

MessageCatalogue MessageCatalogue::FromDevice(QIODevice& device)
{
    // One byte more than allowed, because a device may not know its size.
    const QByteArray document = device.read(MaximumSize + 1);
    if (document.size() > MaximumSize)
        return {};
    const auto entries = ReadLinguistDocument(document);
    MessageCatalogue catalogue;
    for (const LinguistEntry& entry : entries.value_or(LinguistEntries())) {
        if (entry.IsFinished())
            catalogue.Add(entry.context, entry.source, entry.translation);
    }
    return catalogue;
}

QString MessageCatalogue::Translate(const QString& text, const QString& context) const
{
    return Find(text, context).value_or(text);
}

std::optional<QString> MessageCatalogue::Find(const QString& text, const QString& context) const
{
    if (context.isEmpty())
        return FindIn(m_anywhere, text);
    return FindIn(m_inContext, KeyInContext(context, text));
}

void MessageCatalogue::Add(const QString& context, const QString& text, const QString& translation)
{
    const QString key = KeyInContext(context, text);
    if (!m_inContext.contains(key))
        m_inContext.insert(key, translation);
    if (!m_anywhere.contains(text))
        m_anywhere.insert(text, translation);
}

} // namespace Orvane
