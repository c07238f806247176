// SPDX-License-Identifier: MIT
#include "hostkit/manager/SchemeReport.h"

#include "hostkit/schemes/SchemeExchange.h"
#include "support/MessageBoxRobot.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTest>
#include <QTimer>
#include <QWidget>

namespace Orvane {

using namespace Testing;

namespace {

SchemeImport SomeImport()
{
    SchemeImport import;
    import.name = "Night";
    import.matched = 12;
    import.onlyInFile = QStringList{"Roads", "Rivers"};
    import.onlyInMap = QStringList{"Parcels"};
    return import;
}

} // namespace

TEST(SchemeReport, CountsWhatMatchedAndWhatDidNot)
{
    const QString text = ReportText(SomeImport());
    EXPECT_TRUE(text.contains("\"Night\""));
    EXPECT_TRUE(text.contains("this map: 12"));
    EXPECT_TRUE(text.contains("does not have: 2"));
    EXPECT_TRUE(text.contains("keep their values: 1"));
}

TEST(SchemeReport, SaysNothingOfMismatchesWhenThereAreNone)
{
    SchemeImport import = SomeImport();
    import.onlyInFile.clear();
    import.onlyInMap.clear();
    EXPECT_FALSE(ReportText(import).contains("not have"));
    EXPECT_EQ(ReportDetails(import), "");
}

TEST(SchemeReport, NamesTheLayersThatDidNotMatch)
{
    const QStringList lines = ReportDetails(SomeImport()).split('\n');
    EXPECT_EQ(
        lines,
        QStringList(
            {"In the file, not in the map:", "    Roads", "    Rivers", "",
             "In the map, not in the file:", "    Parcels"}));
}

TEST(SchemeReport, StopsNamingWhereNobodyReadsOn)
{
    SchemeImport import;
    for (int layer = 0; layer < 100000; ++layer)
        import.onlyInFile << QString(10000, 'x');
    const QString details = ReportDetails(import);
    EXPECT_LT(details.size(), 100000);
    EXPECT_TRUE(details.endsWith("... and 99,000 more.")) << qPrintable(details.right(60));
}

TEST(SchemeReport, EnterAndEscapeLeaveTheLayersAsTheyAre)
{
    QWidget window;
    MessageBoxRobot user{BoxKey::Enter, BoxKey::Escape};
    EXPECT_EQ(AskAfterImport(SomeImport(), false, window), AfterImport::Stay);
    EXPECT_EQ(AskAfterImport(SomeImport(), true, window), AfterImport::Stay);
    EXPECT_EQ(user.Boxes()[0].format, Qt::PlainText);
}

TEST(SchemeReport, TheOtherButtonSwitches)
{
    QWidget window;
    QTimer::singleShot(0, [] {
        const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_TRUE(box);
        for (QAbstractButton* button : box->buttons()) {
            if (box->buttonRole(button) == QMessageBox::AcceptRole)
                QTest::mouseClick(button, Qt::LeftButton);
        }
    });
    EXPECT_EQ(AskAfterImport(SomeImport(), false, window), AfterImport::Switch);
}

} // namespace Orvane
