// SPDX-License-Identifier: MIT
#include "messages/LinguistReader.h"
#include "support/LinguistFile.h"
#include "translations/SourceTexts.h"

#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

using Testing::TextPlaces;

// "POBEX" or "orvane", and a language.
struct CatalogueName {
    const char* product;
    const char* language;
};

void PrintTo(const CatalogueName& name, std::ostream* stream)
{
    *stream << name.product << '.' << name.language;
}

class Catalogue : public testing::TestWithParam<CatalogueName>
{
protected:
    Catalogue()
    {
        const QString file
            = QStringLiteral("translations/%1.%2.ts").arg(GetParam().product, GetParam().language);
        m_entries
            = ReadLinguistDocument(Testing::ReadFile(Testing::SourcePath(file))).value_or(LinguistEntries());
    }

    static TextPlaces Sources()
    {
        return GetParam().product == std::string("POBEX") ? Testing::ComponentTexts() : Testing::HostTexts();
    }

    LinguistEntries m_entries;
};

QStringList Found(const QString& text, const char* pattern)
{
    QStringList found;
    const QRegularExpression expression{QString::fromLatin1(pattern)};
    for (auto matches = expression.globalMatch(text); matches.hasNext();)
        found.append(matches.next().captured());
    found.sort();
    return found;
}

QStringList Placeholders(const QString& text)
{
    return Found(text, "\\^[1-9]|%[1-9n]");
}

qsizetype Mnemonics(const QString& text)
{
    return Found(text, "&[^&\\s]").size();
}

std::string Named(const LinguistEntry& entry)
{
    return '"' + entry.source.toStdString() + '"';
}

} // namespace

TEST_P(Catalogue, HasAFinishedEntryForEveryTextThatIsShown)
{
    QSet<QString> translated;
    for (const LinguistEntry& entry : m_entries) {
        if (entry.IsFinished())
            translated.insert(entry.source);
    }
    const TextPlaces sources = Sources();
    for (auto source = sources.begin(); source != sources.end(); ++source) {
        EXPECT_TRUE(translated.contains(source.key()))
            << "missing: \"" << qPrintable(source.key()) << "\" in " << qPrintable(source.value().first());
    }
}

TEST_P(Catalogue, HasNoEntryForATextThatIsNotShown)
{
    const TextPlaces sources = Sources();
    for (const LinguistEntry& entry : m_entries) {
        const bool hasLetter = entry.source.contains(QRegularExpression("\\pL"));
        EXPECT_TRUE(!hasLetter || sources.contains(entry.source)) << "stale: " << Named(entry);
    }
}

TEST_P(Catalogue, KeepsThePlaceholdersOfEveryText)
{
    for (const LinguistEntry& entry : m_entries)
        EXPECT_EQ(Placeholders(entry.translation), Placeholders(entry.source)) << Named(entry);
}

TEST_P(Catalogue, GivesAMnemonicToEveryTextThatHasOne)
{
    for (const LinguistEntry& entry : m_entries)
        EXPECT_EQ(Mnemonics(entry.translation), Mnemonics(entry.source)) << Named(entry);
}

TEST_P(Catalogue, KeepsTheDotsOfACommandThatAsksForMore)
{
    for (const LinguistEntry& entry : m_entries) {
        EXPECT_EQ(
            entry.translation.endsWith("...") || entry.translation.endsWith(u'…'),
            entry.source.endsWith("..."))
            << Named(entry);
    }
}

TEST_P(Catalogue, KeepsTheBlanksAroundEveryText)
{
    for (const LinguistEntry& entry : m_entries) {
        EXPECT_EQ(entry.translation.startsWith(' '), entry.source.startsWith(' ')) << Named(entry);
        EXPECT_EQ(entry.translation.endsWith(' '), entry.source.endsWith(' ')) << Named(entry);
    }
}

TEST_P(Catalogue, HasDifferentWordsForABackdropAndAFillsBackground)
{
    QStringList words;
    for (const LinguistEntry& entry : m_entries) {
        if (entry.source == "Backdrop" || entry.source == "Back&ground:")
            words.append(Found(entry.translation, "\\pL+").join(QString()));
    }
    EXPECT_EQ(words.removeDuplicates(), 0) << qPrintable(words.join(' '));
}

TEST_P(Catalogue, HoldsEachTextOfAContextOnce)
{
    QSet<QString> seen;
    for (const LinguistEntry& entry : m_entries) {
        const QString key = entry.context + u'\n' + entry.source;
        EXPECT_FALSE(seen.contains(key)) << "twice: " << Named(entry);
        seen.insert(key);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Translations, Catalogue,
    testing::Values(
        CatalogueName{"POBEX", "de"}, CatalogueName{"POBEX", "fr"}, CatalogueName{"POBEX", "ja"},
        CatalogueName{"orvane", "de"}, CatalogueName{"orvane", "fr"}, CatalogueName{"orvane", "ja"}));

} // namespace Orvane
