// SPDX-License-Identifier: MIT
#include "qgis/plugin/QgisTexts.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTranslator>

#include <gtest/gtest.h>

namespace Orvane::Testing {

namespace {

/// QGIS's German word for one text.
class WordOfQgis : public QTranslator
{
public:
    using QTranslator::QTranslator;
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* text, const char*, int) const override
    {
        return qstrcmp(text, "Undo") == 0 ? QStringLiteral("QGIS") : QString();
    }
};

class QgisTextsTest : public testing::Test
{
protected:
    QgisTextsTest()
    {
        QCoreApplication::installTranslator(&m_qgis);
        QFile::copy(ORVANE_SOURCE_DIR "/translations/orvane.de.ts", m_folder.filePath("orvane.de.ts"));
        QgisTexts::Install(QLocale("de_DE"), m_folder.path());
    }
    ~QgisTextsTest() override { QgisTexts::Remove(); }

private:
    WordOfQgis m_qgis{QCoreApplication::instance()};
    QTemporaryDir m_folder;
};

TEST_F(QgisTextsTest, AWordThatQGISHasStaysThatOfQGIS)
{
    EXPECT_EQ(QCoreApplication::translate("QgisApp", "Undo"), "QGIS");
}

TEST_F(QgisTextsTest, AnOwnTextIsTranslated)
{
    EXPECT_EQ(QCoreApplication::translate("LayerControlPlugin", "Layer Control"), "Layersteuerung");
}

TEST_F(QgisTextsTest, ARemovedTranslatorTranslatesNothing)
{
    QgisTexts::Remove();
    EXPECT_EQ(QCoreApplication::translate("LayerControlPlugin", "Layer Control"), "Layer Control");
}

} // namespace

} // namespace Orvane::Testing
