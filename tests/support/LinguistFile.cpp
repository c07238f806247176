// SPDX-License-Identifier: MIT
#include "support/LinguistFile.h"

#include <QDir>
#include <QFile>
#include <QXmlStreamWriter>

#include <gtest/gtest.h>

namespace Orvane::Testing {

QByteArray LinguistDocument(const std::vector<MessagePair>& messages, const QString& context)
{
    QByteArray document;
    QXmlStreamWriter xml(&document);
    xml.writeStartDocument();
    xml.writeStartElement("TS");
    xml.writeStartElement("context");
    xml.writeTextElement("name", context);
    for (const auto& [english, translation] : messages) {
        xml.writeStartElement("message");
        xml.writeTextElement("source", english);
        xml.writeTextElement("translation", translation);
        xml.writeEndElement();
    }
    xml.writeEndDocument();
    return document;
}

void WriteFile(const QString& path, const QByteArray& bytes)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(path);
    ASSERT_EQ(file.write(bytes), bytes.size()) << qPrintable(path);
}

QByteArray ReadFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        ADD_FAILURE() << "cannot read " << qPrintable(path);
    return file.readAll();
}

QString SourcePath(const QString& relative)
{
    return QStringLiteral(ORVANE_SOURCE_DIR "/") + relative;
}

} // namespace Orvane::Testing
