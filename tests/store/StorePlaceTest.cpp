// SPDX-License-Identifier: MIT
#include "store/StorePlace.h"

#include <QDir>

#include <gtest/gtest.h>

namespace Orvane::Testing {
namespace {

const QString Town
    = QStringLiteral("postgresql://anna@one.example,two.example/maps?schema=Old%20town&sslmode=require");

TEST(StorePlaceTest, WhatDoesNotNameAServerIsAFile)
{
    for (const char* place :
         {"town.orvane", "/maps/postgresql/town.orvane", "postgresql.orvane", "C:/town.orvane", ""})
        EXPECT_TRUE(StorePlace::IsFile(QString::fromLatin1(place))) << place;
    for (const char* place :
         {"postgresql:///?service=team&schema=Town", "postgres://x/y", "PostgreSQL://x", "postgresql:/x"})
        EXPECT_FALSE(StorePlace::IsFile(QString::fromLatin1(place))) << place;
}

TEST(StorePlaceTest, FilesHaveAbsolutePathsAndPlacesOnServersStayAsTheyAre)
{
    EXPECT_EQ(
        StorePlace::Canonical(QStringLiteral("town.orvane")),
        QDir::current().filePath(QStringLiteral("town.orvane")));
    EXPECT_EQ(StorePlace::Canonical(Town), Town);
}

TEST(StorePlaceTest, ANameIsThatOfTheFileOrOfTheMapOnTheServer)
{
    EXPECT_EQ(StorePlace::NameOf(QStringLiteral("/maps/old.town.orvane")), QStringLiteral("old.town"));
    EXPECT_EQ(
        StorePlace::FileNameOf(QStringLiteral("/maps/old.town.orvane")), QStringLiteral("old.town.orvane"));
    EXPECT_EQ(StorePlace::FileNameOf(Town), QStringLiteral("Old town"));
    EXPECT_EQ(StorePlace::NameOf(Town), QStringLiteral("Old town"));
    EXPECT_EQ(StorePlace::NameOf(QStringLiteral("postgresql:///maps")), QString());
}

TEST(StorePlaceTest, ATitleTellsTheServerToo)
{
    const auto title = [](const char* place) { return StorePlace::TitleOf(QString::fromLatin1(place)); };
    EXPECT_EQ(title("/maps/town.orvane"), QStringLiteral("town.orvane"));
    EXPECT_EQ(title("postgresql:///?service=team&schema=Town"), QStringLiteral("Town (team)"));
    EXPECT_EQ(title("postgresql://anna@maps.org:5433/db?schema=Town"), QStringLiteral("Town (maps.org)"));
    EXPECT_EQ(title("postgresql:///?host=/run/pg&schema=Town"), QStringLiteral("Town (/run/pg)"));
    EXPECT_EQ(title("postgresql:///maps?schema=Town"), QStringLiteral("Town (maps)"));
    EXPECT_EQ(title("postgresql:///?schema=Town"), QStringLiteral("Town"));
}

} // namespace
} // namespace Orvane::Testing
