// SPDX-License-Identifier: MIT
#include "shell/dialogs/TableColumnsDialog.h"

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QTest>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

using Purpose = TableColumnsDialog::Purpose;

TableChoice Shops()
{
    const QStringList columns = {"name", "lon", "lat", "where"};
    return {
        "/data/shops.csv",
        {"shops",
         columns,
         {{"Baker", "13.4", "52.5", "POINT (1 2)"}, {"Book", "13.5", "52.6", "POINT (3 4)"}}},
        {"lon", "lat", {}}};
}

TableChoice Notes()
{
    return {"/data/notes.csv", {"notes", {"a", "b"}, {{"1", "2"}}}, {}};
}

class TableColumnsDialogTest : public testing::Test
{
protected:
    void Open(const std::vector<TableChoice>& tables, Purpose purpose = Purpose::Adding)
    {
        m_dialog = std::make_unique<TableColumnsDialog>(tables, purpose, nullptr);
        m_dialog->show();
        ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == m_dialog.get(); }));
    }
    template <typename Widget> Widget& Find(const char* name)
    {
        return *m_dialog->findChild<Widget*>(QLatin1String(name));
    }
    void Choose(const char* list, const char* column)
    {
        auto& box = Find<QComboBox>(list);
        box.setFocus();
        QTest::keyClicks(&box, QLatin1String(column));
    }
    void ClickOn(const char* option)
    {
        auto& button = Find<QRadioButton>(option);
        QTest::mouseClick(&button, Qt::LeftButton, {}, QPoint(8, button.height() / 2));
    }
    const CoordinateColumns& Columns(size_t table = 0) const { return m_dialog->Tables().at(table).columns; }
    bool MayAccept() { return Find<QDialogButtonBox>("buttons").button(QDialogButtonBox::Ok)->isEnabled(); }
    QString Problem() { return Find<QLabel>("lblProblem").text(); }

    std::unique_ptr<TableColumnsDialog> m_dialog;
};

} // namespace

TEST_F(TableColumnsDialogTest, ShowsTheGuessAndTheFirstRows)
{
    Open({Shops()});
    EXPECT_TRUE(Find<QRadioButton>("optNumbers").isChecked());
    EXPECT_EQ(Find<QComboBox>("cmbX").currentText(), "lon");
    EXPECT_EQ(Find<QComboBox>("cmbY").currentText(), "lat");
    EXPECT_EQ(Find<QTableWidget>("tblRows").rowCount(), 2);
    EXPECT_EQ(Find<QTableWidget>("tblRows").item(1, 0)->text(), "Book");
    EXPECT_TRUE(Find<QTableWidget>("tblRows").item(0, 1)->font().bold());
    EXPECT_FALSE(Find<QTableWidget>("tblRows").item(0, 0)->font().bold());
    EXPECT_FALSE(Find<QListWidget>("lstTables").isVisible());
    EXPECT_EQ(Find<QLabel>("lblTable").text(), "shops.csv");
    EXPECT_TRUE(MayAccept());
}

TEST_F(TableColumnsDialogTest, EnterTakesTheGuess)
{
    Open({Shops()});
    QTest::keyClick(m_dialog.get(), Qt::Key_Return);
    EXPECT_EQ(m_dialog->result(), QDialog::Accepted);
    EXPECT_EQ(Columns(), Shops().columns);
}

TEST_F(TableColumnsDialogTest, AnotherColumnIsChosenByKey)
{
    Open({Shops()});
    Choose("cmbX", "lat");
    EXPECT_EQ(Columns().x, "lat");
    EXPECT_FALSE(MayAccept()) << "the same column twice";
    EXPECT_FALSE(Problem().isEmpty());
    Choose("cmbY", "lon");
    EXPECT_EQ(Columns().y, "lon");
    EXPECT_TRUE(MayAccept());
    EXPECT_TRUE(Problem().isEmpty());
}

TEST_F(TableColumnsDialogTest, AColumnWithoutNumbersIsTold)
{
    Open({Shops()});
    Choose("cmbX", "name");
    EXPECT_FALSE(Problem().isEmpty());
    EXPECT_TRUE(MayAccept());
}

TEST_F(TableColumnsDialogTest, AColumnOfGeometriesIsChosen)
{
    Open({Shops()});
    ClickOn("optGeometry");
    Choose("cmbGeometry", "where");
    EXPECT_EQ(Columns(), (CoordinateColumns{{}, {}, "where"}));
    EXPECT_FALSE(Find<QComboBox>("cmbX").isEnabled());
    EXPECT_TRUE(MayAccept());
}

TEST_F(TableColumnsDialogTest, SeveralTablesShareTheWindow)
{
    Open({Shops(), Notes()});
    auto& list = Find<QListWidget>("lstTables");
    ASSERT_EQ(list.count(), 2);
    EXPECT_EQ(list.item(0)->text(), "shops.csv");
    EXPECT_EQ(list.item(1)->text(), "notes.csv (left out)");
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_TRUE(Find<QRadioButton>("optNone").isChecked());
    ClickOn("optNumbers");
    Choose("cmbX", "a");
    Choose("cmbY", "b");
    EXPECT_EQ(list.item(1)->text(), "notes.csv");
    EXPECT_EQ(Columns(1), (CoordinateColumns{"a", "b", {}}));
    EXPECT_EQ(Columns(0), Shops().columns);
}

TEST_F(TableColumnsDialogTest, ATableIsLeftOutOnlyWhileItIsAdded)
{
    Open({Shops()});
    ClickOn("optNone");
    EXPECT_TRUE(Columns().IsEmpty());
    EXPECT_TRUE(MayAccept());
    Open({Shops()}, Purpose::Changing);
    EXPECT_FALSE(Find<QRadioButton>("optNone").isVisible());
}

} // namespace Orvane
