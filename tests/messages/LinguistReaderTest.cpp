// SPDX-License-Identifier: MIT
#include "messages/LinguistReader.h"

#include "support/LinguistFile.h"
#include "support/ProcessorTime.h"

#include <gtest/gtest.h>

namespace Orvane {

TEST(LinguistReader, EntriesComeInTheOrderOfTheDocument)
{
    const auto entries = ReadLinguistDocument(Testing::LinguistDocument({{"B", "b"}, {"A", "a"}}, "Form"));
    ASSERT_TRUE(entries);
    ASSERT_EQ(entries->size(), 2u);
    EXPECT_EQ((*entries)[0].source, QString("B"));
    EXPECT_EQ((*entries)[0].translation, QString("b"));
    EXPECT_EQ((*entries)[0].context, QString("Form"));
    EXPECT_EQ((*entries)[1].source, QString("A"));
}

TEST(LinguistReader, WhatALinguistAddsForPeopleIsPassedOver)
{
    const auto entries = ReadLinguistDocument(
        "<?xml version='1.0' encoding='utf-8'?><!DOCTYPE TS><TS version='2.1' language='de'>"
        "<dependencies/><context><comment>all</comment><name>Form</name><message><location filename='a.ui' "
        "line='3'/><source>Yes</source><comment>button</comment><extracomment>short</extracomment>"
        "<translatorcomment>ok</translatorcomment><translation>Ja</translation></message></context></TS>");
    ASSERT_TRUE(entries);
    ASSERT_EQ(entries->size(), 1u);
    EXPECT_EQ(entries->front().translation, QString("Ja"));
}

TEST(LinguistReader, MarkupCharactersComeBackAsText)
{
    const auto entries = ReadLinguistDocument(Testing::LinguistDocument({{"<none> & \"", "<keine> & „“"}}));
    ASSERT_TRUE(entries);
    EXPECT_EQ(entries->front().source, QString("<none> & \""));
    EXPECT_EQ(entries->front().translation, QString("<keine> & „“"));
}

TEST(LinguistReader, APluralEntryIsMarkedAndHasNoTranslation)
{
    const auto entries = ReadLinguistDocument(
        "<TS><context><name>A</name><message numerus='yes'><source>%n layers</source><translation>"
        "<numerusform>eine</numerusform><numerusform>%n</numerusform></translation></message></context></"
        "TS>");
    ASSERT_TRUE(entries);
    EXPECT_TRUE(entries->front().plural);
    EXPECT_EQ(entries->front().translation, QString());
}

TEST(LinguistReader, AnotherKindOfDocumentIsRefused)
{
    EXPECT_FALSE(ReadLinguistDocument("<html><context><name>A</name></context></html>"));
    EXPECT_FALSE(ReadLinguistDocument("Delete=Weg\n"));
}

TEST(LinguistReader, DamageBehindTheLastElementRefusesTheWhole)
{
    EXPECT_TRUE(ReadLinguistDocument("<TS></TS>\n<!-- end -->\n"));
    EXPECT_FALSE(ReadLinguistDocument("<TS></TS>\n<TS></TS>"));
    EXPECT_FALSE(ReadLinguistDocument("<TS></TS>garbage"));
}

TEST(LinguistReader, EntitiesThatMultiplyAreNotExpanded)
{
    const Testing::ProcessorTime time(std::chrono::seconds(10));
    QByteArray document = "<!DOCTYPE TS [<!ENTITY a 'aaaaaaaaaaaaaaaa'>";
    for (char name = 'b'; name <= 'j'; ++name) {
        const QByteArray former = QByteArray("&") + char(name - 1) + ";";
        document += QByteArray("<!ENTITY ") + name + " '" + former.repeated(10) + "'>";
    }
    document += "]><TS><context><name>&j;</name></context></TS>";
    EXPECT_FALSE(ReadLinguistDocument(document));
}

TEST(LinguistReader, ADocumentOfDeeplyNestedElementsIsRefused)
{
    const QByteArray good = "<TS><context><name>A</name></context></TS>";
    EXPECT_TRUE(ReadLinguistDocument(good));
    const auto nested = [](int depth) {
        return "<TS>" + QByteArray("<a>").repeated(depth) + QByteArray("</a>").repeated(depth) + "</TS>";
    };
    EXPECT_TRUE(ReadLinguistDocument(nested(10)));
    EXPECT_FALSE(ReadLinguistDocument(nested(100'000)));
}

} // namespace Orvane
