// SPDX-License-Identifier: MIT
#include "messages/CatalogueTranslator.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

MessageCatalogue German()
{
    MessageCatalogue catalogue;
    catalogue.Add("MainWindow", "Open data...", "Daten öffnen ...");
    return catalogue;
}

class Installed
{
public:
    explicit Installed(QTranslator& translator) : m_translator(translator)
    {
        QCoreApplication::installTranslator(&m_translator);
    }
    ~Installed() { QCoreApplication::removeTranslator(&m_translator); }
    Installed(const Installed&) = delete;
    Installed& operator=(const Installed&) = delete;

private:
    QTranslator& m_translator;
};

} // namespace

TEST(CatalogueTranslator, TranslatesWhatItsCatalogueHoldsForTheContext)
{
    CatalogueTranslator translator(German());
    const Installed installed(translator);
    EXPECT_EQ(QCoreApplication::translate("MainWindow", "Open data..."), QString("Daten öffnen ..."));
}

TEST(CatalogueTranslator, AnotherContextGetsTheTextToo)
{
    CatalogueTranslator translator(German());
    const Installed installed(translator);
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Open data..."), QString("Daten öffnen ..."));
}

TEST(CatalogueTranslator, AnEntryOfTheAskingContextComesFirst)
{
    MessageCatalogue catalogue;
    catalogue.Add("Fish", "Scale", "Schuppe");
    catalogue.Add("Printer", "Scale", "Maßstab");
    const CatalogueTranslator translator(catalogue);
    EXPECT_EQ(translator.translate("Printer", "Scale"), QString("Maßstab"));
    EXPECT_EQ(translator.translate("Fish", "Scale"), QString("Schuppe"));
}

TEST(CatalogueTranslator, LeavesOtherTextsAlone)
{
    CatalogueTranslator translator(German());
    const Installed installed(translator);
    EXPECT_EQ(QCoreApplication::translate("MainWindow", "Close"), QString("Close"));
}

TEST(CatalogueTranslator, ADisambiguationIsNotToldApart)
{
    CatalogueTranslator translator(German());
    EXPECT_EQ(translator.translate("MainWindow", "Open data...", "menu"), QString("Daten öffnen ..."));
}

TEST(CatalogueTranslator, ATextItDoesNotKnowIsNullSoThatTheNextTranslatorIsAsked)
{
    const CatalogueTranslator translator(German());
    EXPECT_TRUE(translator.translate("MainWindow", "Close").isNull());
    EXPECT_TRUE(translator.translate(nullptr, "Close").isNull());
    EXPECT_TRUE(translator.translate("MainWindow", nullptr).isNull());
}

TEST(CatalogueTranslator, IsEmptyWhenItsCatalogueIs)
{
    EXPECT_TRUE(CatalogueTranslator(MessageCatalogue()).isEmpty());
    EXPECT_FALSE(CatalogueTranslator(German()).isEmpty());
}

} // namespace Orvane
