// SPDX-License-Identifier: MIT
#include "shell/command/DataSentences.h"

#include <QDir>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

const QString Inside = QDir::current().filePath("data/roads.shp");

} // namespace

TEST(DataSentences, APathInTheCurrentFolderBeginsThere)
{
    EXPECT_EQ(PathToTell(Inside), QDir::toNativeSeparators("data/roads.shp"));
    EXPECT_EQ(PathToTell("data/roads.shp"), QDir::toNativeSeparators("data/roads.shp"));
    const QString outside = QDir::current().filePath("../other/roads.shp");
    EXPECT_EQ(PathToTell(outside), QDir::toNativeSeparators(QDir::cleanPath(outside)));
}

TEST(DataSentences, ThePathTakesThePlaceOfTheName)
{
    EXPECT_EQ(WithPath("\"roads.shp\" is bad.", Inside), "\"data/roads.shp\" is bad.");
    EXPECT_EQ(WithPath("\"x\" in \"roads.shp\" is bad.", Inside), "\"x\" in \"data/roads.shp\" is bad.");
}

TEST(DataSentences, ALongerNameIsNotTheFile)
{
    EXPECT_EQ(
        WithPath("\"my_roads.shp\" is not \"roads.shp\".", Inside),
        "\"my_roads.shp\" is not \"data/roads.shp\".");
}

TEST(DataSentences, ASentenceThatNamesTheFolderStays)
{
    const QString sentence = QString("\"roads.shp\" is missing from \"%1\".")
                                 .arg(QDir::toNativeSeparators(QFileInfo(Inside).absolutePath()));
    EXPECT_EQ(WithPath(sentence, Inside), sentence);
}

TEST(DataSentences, ASentenceThatDoesNotNameTheFileBeginsWithIt)
{
    EXPECT_EQ(WithPath("Reading failed.", Inside), "data/roads.shp: Reading failed.");
}

TEST(DataSentences, SeveralFilesOfOneNameGetTheirOwnPaths)
{
    const QStringList paths = {Inside, QDir::current().filePath("old/roads.shp")};
    EXPECT_EQ(WithPaths("roads.shp, roads.shp", paths), "data/roads.shp, old/roads.shp");
}

TEST(DataSentences, EachFailureIsToldOnce)
{
    SourceContents contents;
    contents.failures
        = {{1, "\"roads.shp\" is bad."}, {2, "\"roads.shp\" is bad."}, {3, "\"roads.shp\" is bad."}};
    const QString other = QDir::current().filePath("old/roads.shp");
    EXPECT_EQ(
        FailuresWithPaths(contents, {{1, Inside, {}, {}}, {2, Inside, {}, {}}, {3, other, {}, {}}}),
        QStringList({"\"data/roads.shp\" is bad.", "\"old/roads.shp\" is bad."}));
}

} // namespace Orvane
