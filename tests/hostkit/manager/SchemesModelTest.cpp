// SPDX-License-Identifier: MIT
#include "hostkit/manager/SchemesModel.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QAbstractItemModelTester>
#include <QLocale>
#include <QMimeData>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Orvane::Testing {
namespace {

using testing::ElementsAre;

class SchemesInATable : public testing::Test
{
protected:
    SchemesInATable() { m_model.Show({Named(QStringLiteral("Day")), Named(QStringLiteral("Night"), true)}); }

    static SchemeDetails Named(const QString& name, bool isCurrent = false)
    {
        SchemeDetails scheme;
        scheme.name = name;
        scheme.isCurrent = isCurrent;
        return scheme;
    }

    QStringList Names() const
    {
        QStringList names;
        for (int row = 0; row < m_model.rowCount(); ++row)
            names << m_model.NameAt(row);
        return names;
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

TEST_F(SchemesInATable, FollowsSchemesToTheirNewNames)
{
    SchemeDetails day = Named(QStringLiteral("Day"));
    day.id = 1;
    const SchemeDetails hosts = Named(QStringLiteral("Host's own"));
    SchemeDetails renamed = Named(QStringLiteral("Zenith"));
    renamed.id = 1;
    m_model.Show({Named(QStringLiteral("Day")), hosts, renamed});
    EXPECT_THAT(m_model.NamesOf({day, hosts}), ElementsAre(hosts.name, renamed.name));
    SchemeDetails gone = day;
    gone.id = 2;
    EXPECT_TRUE(m_model.NamesOf({gone}).isEmpty());
}

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
    m_model.Show({Named(QStringLiteral("Dusk"), true)});
    EXPECT_EQ(m_model.rowCount(), 1);
    EXPECT_EQ(m_model.RowOf(QStringLiteral("Night")), -1);
    EXPECT_TRUE(m_model.CountNext());
    EXPECT_FALSE(m_model.CountNext());
}

TEST_F(SchemesInATable, KeepTheirNumbersWhenOnlyTheOrderChanges)
{
    while (m_model.CountNext()) { }
    m_model.Show(
        {Named(QStringLiteral("Night"), true), Named(QStringLiteral("Day"))}, SchemesModel::Counts::Keep);
    EXPECT_EQ(Text(1, SchemesModel::Differing), QStringLiteral("7"));
    EXPECT_FALSE(m_model.CountNext());
}

TEST_F(SchemesInATable, KeepTheirNumbersUnderAnotherName)
{
    SchemeDetails scheme = Named(QStringLiteral("Dusk"));
    scheme.id = 3;
    m_model.Show({scheme});
    EXPECT_TRUE(m_model.CountNext());
    scheme.name = QStringLiteral("Dawn");
    m_model.Show({scheme}, SchemesModel::Counts::Keep);
    EXPECT_EQ(Text(0, SchemesModel::Differing), QStringLiteral("7"));
}

TEST_F(SchemesInATable, ShowWhatTheyHoldAndWhenTheyWereSaved)
{
    SchemeDetails scheme = Named(QStringLiteral("Locks"));
    scheme.holds = SchemePart::Flags | SchemePart::Scales;
    scheme.saved = QDateTime(QDate(2026, 5, 1), QTime(12, 30));
    scheme.isAtOpening = true;
    m_model.Show({scheme, Named(QStringLiteral("Old"))});
    EXPECT_EQ(Text(0, SchemesModel::Holds), QStringLiteral("Flags, Scales"));
    EXPECT_EQ(Text(0, SchemesModel::Saved), QLocale().toString(scheme.saved, QLocale::ShortFormat));
    EXPECT_EQ(Text(0, SchemesModel::AtOpening), QStringLiteral("yes"));
    EXPECT_EQ(Text(1, SchemesModel::Holds), QStringLiteral("All properties"));
    EXPECT_EQ(Text(1, SchemesModel::Saved), QString());
    EXPECT_EQ(Text(1, SchemesModel::Saved, Qt::AccessibleTextRole), QStringLiteral("not known"));
    EXPECT_EQ(Text(1, SchemesModel::AtOpening, Qt::AccessibleTextRole), QStringLiteral("no"));
}

TEST_F(SchemesInATable, AreSortedByDateAndComeBackInTheUsersOrder)
{
    SchemeDetails day = Named(QStringLiteral("Day"));
    day.saved = QDateTime(QDate(2026, 5, 1), QTime(12, 30), Qt::UTC);
    SchemeDetails night = Named(QStringLiteral("Night"));
    night.saved = day.saved.addDays(-1);
    m_model.Show({day, Named(QStringLiteral("Old")), night});
    m_model.SortBy(SchemesModel::Saved);
    EXPECT_THAT(Names(), ElementsAre(QStringLiteral("Old"), QStringLiteral("Night"), QStringLiteral("Day")));
    m_model.SortBy(SchemesModel::Saved, Qt::DescendingOrder);
    EXPECT_THAT(Names(), ElementsAre(QStringLiteral("Day"), QStringLiteral("Night"), QStringLiteral("Old")));
    EXPECT_THAT(
        m_model.Names(), ElementsAre(QStringLiteral("Day"), QStringLiteral("Old"), QStringLiteral("Night")));
    m_model.SortBy(std::nullopt);
    EXPECT_EQ(Names(), m_model.Names());
}

TEST_F(SchemesInATable, ThatAreDraggedFromAnotherTableAreNotTaken)
{
    SchemesModel other([](const QString&) { return qsizetype(0); });
    other.Show({Named(QStringLiteral("Day"))});
    const std::unique_ptr<QMimeData> theirs(other.mimeData({other.index(0, SchemesModel::Name)}));
    const std::unique_ptr<QMimeData> own(m_model.mimeData({m_model.index(0, SchemesModel::Name)}));
    EXPECT_FALSE(m_model.canDropMimeData(theirs.get(), Qt::MoveAction, 0, 0, {}));
    EXPECT_TRUE(m_model.canDropMimeData(own.get(), Qt::MoveAction, 0, 0, {}));
    m_model.SortBy(SchemesModel::Name);
    EXPECT_FALSE(m_model.canDropMimeData(own.get(), Qt::MoveAction, 0, 0, {}));
}

} // namespace
} // namespace Orvane::Testing
