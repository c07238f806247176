// SPDX-License-Identifier: MIT
#include "shell/systems/SystemChooser.h"

#include "shell/systems/RecentSystems.h"
#include "shell/systems/SystemListModel.h"

#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QTest>
#include <QTreeView>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

class SystemChooserTest : public testing::Test
{
protected:
    void SetUp() override { QSettings().clear(); }

    void Open(const SystemQuestion& question = {})
    {
        m_dialog = std::make_unique<SystemChooser>(m_catalogue, question, nullptr);
        m_dialog->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_dialog.get()));
    }

    template <typename Widget = QLineEdit> Widget* Find(const char* name) const
    {
        return m_dialog->findChild<Widget*>(QLatin1String(name));
    }

    void Search(const char* text) { QTest::keyClicks(Find("edtSearch"), QLatin1String(text)); }
    void Press(Qt::Key key) { QTest::keyClick(Find("edtSearch"), key); }
    QAbstractItemModel* List() const { return Find<QTreeView>("lstSystems")->model(); }

    QString Cell(int row, int column) const { return List()->index(row, column).data().toString(); }

    bool CanAccept() const
    {
        return Find<QDialogButtonBox>("buttons")->button(QDialogButtonBox::Ok)->isEnabled();
    }

    SystemCatalogue m_catalogue;
    std::unique_ptr<SystemChooser> m_dialog;
};

} // namespace

TEST_F(SystemChooserTest, WordsInAnyOrderFindASystemByNameCodeAndArea)
{
    Open();
    Search("germany 32n ETRS89 25832");
    ASSERT_EQ(List()->rowCount(), 1);
    EXPECT_EQ(Cell(0, SystemListModel::Code), "EPSG:25832");
    EXPECT_EQ(m_dialog->System(), "EPSG:25832");
}

TEST_F(SystemChooserTest, ArrowKeysGoThroughTheListWhileOneSearchesAndEnterTakesASystem)
{
    Open();
    Search("wgs 84 utm zone 3");
    ASSERT_GT(List()->rowCount(), 2);
    Press(Qt::Key_Down);
    EXPECT_EQ(m_dialog->System(), Cell(1, SystemListModel::Code));
    Press(Qt::Key_Up);
    EXPECT_EQ(m_dialog->System(), Cell(0, SystemListModel::Code));
    Press(Qt::Key_Return);
    EXPECT_EQ(m_dialog->result(), QDialog::Accepted);
}

TEST_F(SystemChooserTest, ADoubleClickTakesASystem)
{
    QWidget desk;
    desk.show();
    Open();
    Search("utm 32n wgs");
    auto* list = Find<QTreeView>("lstSystems");
    const QPoint row = list->visualRect(list->model()->index(0, 0)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, row);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, row);
    EXPECT_EQ(m_dialog->result(), QDialog::Accepted);
    EXPECT_EQ(m_dialog->System(), Cell(0, SystemListModel::Code));
    QTest::mouseRelease(&desk, Qt::LeftButton); // the dialog was gone before
}

TEST_F(SystemChooserTest, OwnTextIsCheckedAsItIsTyped)
{
    Open();
    EXPECT_FALSE(CanAccept());
    auto* text = Find("edtSystem");
    QTest::keyClicks(text, "EPSG:");
    EXPECT_FALSE(CanAccept());
    EXPECT_FALSE(Find<QLabel>("lblFacts")->text().isEmpty());
    QTest::keyClicks(text, "32632");
    EXPECT_TRUE(CanAccept());
    EXPECT_TRUE(Find<QLabel>("lblFacts")->text().contains("UTM zone 32N"));
    text->selectAll();
    QTest::keyClicks(text, "+proj=laea +lat_0=52 +lon_0=10");
    EXPECT_TRUE(CanAccept());
}

TEST_F(SystemChooserTest, TheSystemOfALayerCanBeTaken)
{
    Open({"Title", {}, "EPSG:4326", {{"Roads", "EPSG:25832"}, {"Lakes", "EPSG:3035"}}});
    EXPECT_EQ(m_dialog->System(), "EPSG:4326");
    auto* layers = Find<QComboBox>("cmbLayer");
    layers->setFocus();
    QTest::keyClick(layers, Qt::Key_Down);
    QTest::keyClick(layers, Qt::Key_Down);
    EXPECT_EQ(m_dialog->System(), "EPSG:3035");
}

TEST_F(SystemChooserTest, RecentSystemsComeFirst)
{
    RecentSystems::Add("EPSG:25832");
    RecentSystems::Add("EPSG:3035");
    Open();
    EXPECT_EQ(Cell(0, SystemListModel::Code), "EPSG:3035");
    EXPECT_EQ(Cell(1, SystemListModel::Code), "EPSG:25832");
    Search("etrs89");
    EXPECT_EQ(Cell(0, SystemListModel::Code), "EPSG:3035");
}

TEST_F(SystemChooserTest, WithNothingFoundNoSystemIsTaken)
{
    Open({"Title", {}, "EPSG:4326", {}});
    Search("no such system");
    EXPECT_EQ(List()->rowCount(), 0);
    EXPECT_EQ(m_dialog->System(), "");
    Press(Qt::Key_Down);
    Press(Qt::Key_Return);
    EXPECT_TRUE(m_dialog->isVisible());
}

TEST_F(SystemChooserTest, TheListIsAModelLikeOthers)
{
    SystemListModel model(m_catalogue.Systems(), {});
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    model.Search("utm");
    EXPECT_GT(model.rowCount(), 100);
    model.Search({});
    EXPECT_EQ(size_t(model.rowCount()), m_catalogue.Systems().size());
}

} // namespace Orvane
