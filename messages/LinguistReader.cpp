// SPDX-License-Identifier: MIT
#include "messages/LinguistReader.h"

#include <QXmlStreamReader>

namespace Orvane {

namespace {

constexpr int DeepestElement = 16; // a message is at depth 5

// The reader remembers each open element, so that a small file can take a hundred times its size.
bool IsTooDeep(const QByteArray& document)
{
    QXmlStreamReader xml(document);
    int depth = 0;
    while (!xml.atEnd() && depth <= DeepestElement) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        if (token == QXmlStreamReader::StartElement)
            ++depth;
        else if (token == QXmlStreamReader::EndElement)
            --depth;
    }
    return depth > DeepestElement;
}

// A text may hold <byte value="x1b"/> for characters that XML forbids; no shown text needs them.
QString ReadText(QXmlStreamReader& xml)
{
    return xml.readElementText(QXmlStreamReader::SkipChildElements);
}

void ReadTranslation(QXmlStreamReader& xml, LinguistEntry& entry)
{
    entry.type = xml.attributes().value(QLatin1String("type")).toString();
    if (entry.plural)
        xml.skipCurrentElement();
    else
        entry.translation = ReadText(xml);
}

LinguistEntry ReadMessage(QXmlStreamReader& xml, const QString& context)
{
    LinguistEntry entry;
    entry.context = context;
    entry.plural = xml.attributes().value(QLatin1String("numerus")) == QLatin1String("yes");
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("source"))
            entry.source = ReadText(xml);
        else if (xml.name() == QLatin1String("translation"))
            ReadTranslation(xml, entry);
        else
            xml.skipCurrentElement();
    }
    return entry;
}

void ReadContext(QXmlStreamReader& xml, LinguistEntries& entries)
{
    QString context;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("name"))
            context = ReadText(xml);
        else if (xml.name() == QLatin1String("message"))
            entries.push_back(ReadMessage(xml, context));
        else
            xml.skipCurrentElement();
    }
}

LinguistEntries ReadDocument(QXmlStreamReader& xml)
{
    LinguistEntries entries;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("context"))
            ReadContext(xml, entries);
        else
            xml.skipCurrentElement();
    }
    return entries;
}

} // namespace

std::optional<LinguistEntries> ReadLinguistDocument(const QByteArray& document)
{
    if (IsTooDeep(document))
        return std::nullopt;
    QXmlStreamReader xml(document);
    if (!xml.readNextStartElement() || xml.name() != QLatin1String("TS"))
        return std::nullopt;
    LinguistEntries entries = ReadDocument(xml);
    while (!xml.atEnd())
        xml.readNext(); // there may be damage after the last element
    if (xml.hasError())
        return std::nullopt;
    return entries;
}

} // namespace Orvane
