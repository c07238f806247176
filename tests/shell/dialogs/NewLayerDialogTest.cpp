// SPDX-License-Identifier: MIT
#include "shell/dialogs/NewLayerDialog.h"

#include "mapkit/DataFolder.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include <gtest/gtest.h>

namespace Orvane {

using namespace Testing;

namespace {

class NewLayerDialogTest : public testing::Test
{
protected:
    NewLayerDialogTest()
    {
        m_dialog.show();
        QTest::mouseClick(m_dialog.findChild<QRadioButton*>("optSource"), Qt::LeftButton, {}, QPoint(8, 8));
    }

    void SetUp() override
    {
        ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &m_dialog; }));
    }

    void Type(const QString& path)
    {
        auto* line = m_dialog.findChild<QLineEdit*>("edtSource");
        line->setFocus();
        line->selectAll();
        QTest::keyClicks(line, path);
        QTest::keyClick(line, Qt::Key_Tab);
    }

    const QLabel& Problem() const { return *m_dialog.findChild<QLabel*>("lblProblem"); }
    bool CanAccept() const
    {
        return m_dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->isEnabled();
    }

    DataFolder m_folder;
    LayerOffer m_offer;
    QStringList m_looked;
    NewLayerDialog m_dialog{
        QString(),
        [this](const QString& path) {
            m_looked << path;
            return m_offer;
        },
        nullptr};
};

} // namespace

TEST_F(NewLayerDialogTest, AFolderIsNotLookedIntoAndTheDialogSaysWhatToDo)
{
    Type(m_folder.Path(""));
    EXPECT_TRUE(Problem().text().contains("drop the folder on the map")) << qPrintable(Problem().text());
    EXPECT_TRUE(m_looked.isEmpty());
    EXPECT_FALSE(CanAccept());
}

TEST_F(NewLayerDialogTest, AFolderThatIsASourceByItsFormatIsLookedInto)
{
    QDir(m_folder.Path("")).mkpath("town.gdb");
    Type(m_folder.Path("town.gdb"));
    EXPECT_EQ(m_looked, QStringList(m_folder.Path("town.gdb")));
}

TEST_F(NewLayerDialogTest, TheFirstOfManyProblemsAreShownAndMoreInTheToolTip)
{
    for (int i = 1; i <= 500; ++i)
        m_offer.problems << QString("\"part%1.shp\" cannot be read.").arg(i);
    const int before = m_dialog.height();
    Type(m_folder.Write("many.zip", "x"));
    EXPECT_EQ(Problem().text().count('\n'), 3);
    EXPECT_TRUE(Problem().text().contains("part3.shp"));
    EXPECT_TRUE(Problem().text().endsWith("497 more.")) << qPrintable(Problem().text());
    EXPECT_TRUE(Problem().toolTip().contains("part5.shp"));
    EXPECT_LT(Problem().toolTip().size(), 2000);
    EXPECT_LT(m_dialog.sizeHint().height(), before + 10 * m_dialog.fontMetrics().height());
}

TEST_F(NewLayerDialogTest, AFewProblemsAreShownWithoutAToolTip)
{
    m_offer.problems = QStringList{"first", "second", "third"};
    Type(m_folder.Write("few.zip", "x"));
    EXPECT_EQ(Problem().text(), "first\nsecond\nthird");
    EXPECT_EQ(Problem().toolTip(), "");
}

} // namespace Orvane
