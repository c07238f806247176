// SPDX-License-Identifier: MIT
#include "shell/window/CatalogueFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace Orvane {

TEST(CatalogueFile, ALanguageIsFoundWithAndWithoutItsCountry)
{
    EXPECT_EQ(QFileInfo(CatalogueFile({"de"})).fileName(), "orvane.de.ts");
    EXPECT_EQ(QFileInfo(CatalogueFile({"fr-CH"})).fileName(), "orvane.fr.ts");
}

TEST(CatalogueFile, TheFirstLanguageThatThereIsOneForCounts)
{
    EXPECT_EQ(QFileInfo(CatalogueFile({"xx", "ja", "de"})).fileName(), "orvane.ja.ts");
}

TEST(CatalogueFile, EnglishNeedsNone)
{
    EXPECT_TRUE(CatalogueFile({"en-GB", "de"}).isNull());
    EXPECT_TRUE(CatalogueFile({"xx"}).isNull());
}

TEST(CatalogueFile, ItsNameTellsItsLanguage)
{
    EXPECT_EQ(CatalogueLanguage(CatalogueFile({"fr-CH"})), "fr");
    EXPECT_TRUE(CatalogueLanguage(CatalogueFile({"en"})).isNull());
}

} // namespace Orvane
