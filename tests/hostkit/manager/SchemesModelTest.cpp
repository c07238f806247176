// SPDX-License-Identifier: MIT
#include "hostkit/manager/SchemesModel.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QAbstractItemModelTester>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Orvane::Testing {
namespace {

using testing::ElementsAre;

class SchemesInATable : public testing::Test
{
protected:
    SchemesInATable()
    {
        m_model.Show({QStringLiteral("Day"), QStringLiteral("Night")}, QStringLiteral("Night"));
    }

    QString Text(int row, int column, int role = Qt::DisplayRole) const
    {
        return m_model.index(row, column).data(role).toString();
    }

    QStringList m_counted;
    SchemesModel m_model{[this](const QString& scheme) {
        m_counted << scheme;
        if (scheme == QStringLiteral("Night"))
            throw RunTimeError(5, QStringLiteral("the disk is gone"));
        return qsizetype(7);
    }};
    QAbstractItemModelTester m_tester{&m_model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(SchemesInATable, ShowNamesAndTheCurrentOne)
{
    EXPECT_EQ(Text(0, SchemesModel::Name), QStringLiteral("Day"));
    EXPECT_EQ(Text(0, SchemesModel::Current), QString());
    EXPECT_EQ(Text(1, SchemesModel::Current), QStringLiteral("yes"));
    EXPECT_EQ(Text(0, SchemesModel::Current, Qt::AccessibleTextRole), QStringLiteral("no"));
}

TEST_F(SchemesInATable, AreCountedOneByOne)
{
    EXPECT_EQ(Text(0, SchemesModel::Differing), QStringLiteral("..."));
    EXPECT_EQ(Text(0, SchemesModel::Differing, Qt::AccessibleTextRole), QStringLiteral("not counted yet"));
    EXPECT_TRUE(m_model.CountNext());
    EXPECT_THAT(m_counted, ElementsAre(QStringLiteral("Day")));
    EXPECT_EQ(Text(0, SchemesModel::Differing), QStringLiteral("7"));
}

TEST_F(SchemesInATable, SayWhyOneCannotBeCounted)
{
    while (m_model.CountNext()) { }
    EXPECT_EQ(m_counted.size(), 2);
    EXPECT_EQ(Text(1, SchemesModel::Differing), QStringLiteral("?"));
    EXPECT_EQ(Text(1, SchemesModel::Differing, Qt::ToolTipRole), QStringLiteral("the disk is gone"));
}

TEST_F(SchemesInATable, AreCountedAgainAfterAChange)
{
    while (m_model.CountNext()) { }
    m_model.Show({QStringLiteral("Dusk")}, QStringLiteral("Dusk"));
    EXPECT_EQ(m_model.rowCount(), 1);
    EXPECT_EQ(m_model.RowOf(QStringLiteral("Night")), -1);
    EXPECT_TRUE(m_model.CountNext());
    EXPECT_FALSE(m_model.CountNext());
}

} // namespace
} // namespace Orvane::Testing
