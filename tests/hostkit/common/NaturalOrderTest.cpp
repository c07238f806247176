// SPDX-License-Identifier: MIT
#include "hostkit/common/NaturalOrder.h"

#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <gmock/gmock.h>

namespace Orvane {

namespace {

using testing::ElementsAre;

class NaturalOrderTest : public testing::Test
{
protected:
    ~NaturalOrderTest() override { QLocale::setDefault(m_before); }

    static QStringList Sorted(QStringList names)
    {
        std::stable_sort(names.begin(), names.end(), NaturalOrder());
        return names;
    }

private:
    const QLocale m_before;
};

TEST_F(NaturalOrderTest, SortsNumbersByTheirValue)
{
    for (const QLocale& locale : {QLocale::c(), QLocale(QLocale::German)}) {
        QLocale::setDefault(locale);
        EXPECT_THAT(Sorted({"Map 10", "Map 9", "Map 100"}), ElementsAre("Map 9", "Map 10", "Map 100"))
            << locale.name().toStdString();
    }
}

TEST_F(NaturalOrderTest, SortsWithoutCase)
{
    EXPECT_THAT(
        Sorted({"roads", "Lakes", "ROADS", "Rivers"}), ElementsAre("Lakes", "Rivers", "roads", "ROADS"));
}

TEST_F(NaturalOrderTest, SortsAsTheUsersLanguageDoes)
{
    const QString aecker = QStringLiteral(u"Äcker");
    QLocale::setDefault(QLocale(QLocale::German));
    EXPECT_THAT(Sorted({"Zaun", aecker, "Bach"}), ElementsAre(aecker, "Bach", "Zaun"));
    QLocale::setDefault(QLocale(QLocale::Swedish));
    EXPECT_THAT(Sorted({aecker, "Zaun", "Bach"}), ElementsAre("Bach", "Zaun", aecker));
}

} // namespace

} // namespace Orvane
