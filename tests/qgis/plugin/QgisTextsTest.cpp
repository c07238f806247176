// SPDX-License-Identifier: MIT
#include "qgis/plugin/QgisTexts.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace Orvane::Testing {

namespace {

class QgisTextsTest : public testing::Test
{
protected:
    QgisTextsTest()
    {
        QFile::copy(ORVANE_SOURCE_DIR "/translations/orvane.de.ts", m_folder.filePath("orvane.de.ts"));
        QgisTexts::Install(QLocale("de_DE"), m_folder.path());
    }
    ~QgisTextsTest() override { QgisTexts::Remove(); }

private:
    QTemporaryDir m_folder;
};

TEST_F(QgisTextsTest, AWordThatQGISHasStaysThatOfQGIS)
{
    EXPECT_EQ(QCoreApplication::translate("QgisApp", "Undo"), "Undo");
    EXPECT_EQ(QCoreApplication::translate("UndoHistory", "Undo"), QString::fromUtf8("Rückgängig"));
}

TEST_F(QgisTextsTest, AnOwnTextIsTranslated)
{
    EXPECT_EQ(QCoreApplication::translate("Orvane::LayerControlPlugin", "Layer Control"), "Layersteuerung");
}

TEST_F(QgisTextsTest, ARemovedTranslatorTranslatesNothing)
{
    QgisTexts::Remove();
    EXPECT_EQ(QCoreApplication::translate("Orvane::LayerControlPlugin", "Layer Control"), "Layer Control");
}

// The contexts that classes without signals give themselves.
QSet<QString> ContextsIn(const QString& folder)
{
    static const QRegularExpression use(
        "(?:Q_DECLARE_TR_FUNCTIONS\\(|translate\\(\\s*\"|TRANSLATE_NOOP\\(\\s*\")([A-Za-z:]+)");
    QSet<QString> contexts;
    QDirIterator sources(
        ORVANE_SOURCE_DIR "/" + folder, {"*.h", "*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
    while (sources.hasNext()) {
        QFile source(sources.next());
        EXPECT_TRUE(source.open(QIODevice::ReadOnly));
        for (auto uses = use.globalMatch(QString::fromUtf8(source.readAll())); uses.hasNext();)
            contexts.insert(uses.next().captured(1));
    }
    return contexts;
}

TEST(OwnContexts, AllThatThePluginUsesAreKnown)
{
    QSet<QString> contexts;
    for (const char* folder : {"hostkit", "store", "files", "qgis"})
        contexts.unite(ContextsIn(folder));
    EXPECT_GT(contexts.size(), 15);
    for (const QString& context : contexts)
        EXPECT_TRUE(QgisTexts::IsOwn(context.toUtf8())) << context.toStdString();
}

} // namespace

} // namespace Orvane::Testing
