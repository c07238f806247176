// SPDX-License-Identifier: MIT
#include "support/PseudoLanguage.h"

#include "component/common/Component.h"
#include "component/common/MessageTable.h"
#include "messages/LinguistReader.h"
#include "support/LinguistFile.h"

#include <QTemporaryDir>

#include <algorithm>

namespace Orvane::Testing {

namespace {

bool HasWords(const QString& text)
{
    return std::any_of(text.begin(), text.end(), [](QChar character) { return character.isLetter(); });
}

} // namespace

QString Pseudo(const QString& english)
{
    if (!HasWords(english))
        return english;
    const qsizetype padding = (english.size() + 1) / 2;
    return QLatin1Char('[') + english + QString(padding, QLatin1Char('~')) + QLatin1Char(']');
}

QByteArray PseudoCatalogue()
{
    std::vector<MessagePair> messages;
    const auto entries = ReadLinguistDocument(ReadFile(SourcePath("translations/POBEX.de.ts")));
    for (const LinguistEntry& entry : entries.value_or(LinguistEntries()))
        messages.emplace_back(entry.source, Pseudo(entry.source));
    return LinguistDocument(messages);
}

PseudoLanguage::PseudoLanguage()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("POBEX.LRT");
    WriteFile(path, PseudoCatalogue());
    Component::Get().Messages().LoadFile(path);
}

PseudoLanguage::~PseudoLanguage()
{
    Component::Get().Messages().LoadFile(QString());
}

} // namespace Orvane::Testing
