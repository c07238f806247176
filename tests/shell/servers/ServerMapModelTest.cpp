// SPDX-License-Identifier: MIT
#include "shell/servers/ServerMapModel.h"

#include <QAbstractItemModelTester>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

ListedMap MapOf(const QString& name)
{
    ListedMap map;
    map.name = name;
    map.title = name;
    map.owner = "anna";
    map.version = 1;
    return map;
}

class ServerMapModelTest : public testing::Test
{
protected:
    QString Cell(int row, int column) const
    {
        return m_model.index(row, column).data(Qt::DisplayRole).toString();
    }

    ServerMapModel m_model;
    QAbstractItemModelTester m_tester{&m_model, QAbstractItemModelTester::FailureReportingMode::Warning};
};

} // namespace

TEST_F(ServerMapModelTest, ShowsWhatIsKnownAboutAMap)
{
    ListedMap map = MapOf("Town");
    map.users = QStringList{"ben", "cleo"};
    map.mayEdit = true;
    m_model.SetMaps({map});
    EXPECT_EQ(Cell(0, ServerMapModel::Name), "Town");
    EXPECT_EQ(Cell(0, ServerMapModel::Owner), "anna");
    EXPECT_EQ(Cell(0, ServerMapModel::Changed), "not known");
    EXPECT_EQ(Cell(0, ServerMapModel::OpenBy), "ben, cleo");
    EXPECT_EQ(Cell(0, ServerMapModel::Rights), "Edit");
    EXPECT_EQ(Cell(0, ServerMapModel::Version), "1");
}

TEST_F(ServerMapModelTest, TellsAnOwnerAReaderAndAnEditorApart)
{
    ListedMap own = MapOf("Own");
    own.isOwn = own.mayEdit = true;
    m_model.SetMaps({own, MapOf("Others")});
    EXPECT_EQ(Cell(0, ServerMapModel::Rights), "Owner");
    EXPECT_EQ(Cell(1, ServerMapModel::Rights), "Read");
}

TEST_F(ServerMapModelTest, ATitleThatIsNotTheNameIsShown)
{
    ListedMap map = MapOf("town");
    map.title = "The old town";
    m_model.SetMaps({map});
    EXPECT_EQ(Cell(0, ServerMapModel::Name), "The old town");
    EXPECT_EQ(m_model.RowOf("town"), 0);
    EXPECT_EQ(m_model.RowOf("The old town"), -1);
}

TEST_F(ServerMapModelTest, ANameLikeMarkupIsShownAsItIs)
{
    m_model.SetMaps({MapOf("<b>Town</b>\nof many lines")});
    EXPECT_EQ(Cell(0, ServerMapModel::Name), "<b>Town</b> of many lines");
    EXPECT_FALSE(m_model.index(0, 0).data(Qt::ToolTipRole).toString().contains('<'));
}

TEST_F(ServerMapModelTest, TimesAreSortedAsTimes)
{
    ListedMap map = MapOf("Town");
    map.changed = QDateTime(QDate(2026, 11, 2), QTime(9, 0), Qt::UTC);
    m_model.SetMaps({map});
    EXPECT_EQ(
        m_model.index(0, ServerMapModel::Changed).data(ServerMapModel::SortRole).toDateTime(), map.changed);
}

} // namespace Orvane
