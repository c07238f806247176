// SPDX-License-Identifier: MIT
#include "component/common/ListHelpers.h"

#include <QComboBox>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

// A list control with the members of the control library.
class PlainList
{
public:
    int ListCount() const { return int(m_items.size()); }
    qint32 ItemData(int index) const { return m_items[size_t(index)].second; }
    QString List(int index) const { return m_items[size_t(index)].first; }
    int ListIndex() const { return m_selected; }
    void SetListIndex(int index) { m_selected = index; }
    void Append(const QString& text, qint32 data) { m_items.emplace_back(text, data); }

private:
    std::vector<std::pair<QString, qint32>> m_items;
    int m_selected = -1;
};

void Append(PlainList& list, const QString& text, qint32 data)
{
    list.Append(text, data);
}

void Append(QComboBox& list, const QString& text, qint32 data)
{
    list.addItem(text, data);
}

int Selected(const PlainList& list)
{
    return list.ListIndex();
}

int Selected(const QComboBox& list)
{
    return list.currentIndex();
}

// Red, green, transparent and a second red; green is selected.
template <typename List> class ListHelpers : public testing::Test
{
protected:
    ListHelpers()
    {
        Append(m_list, "Red", 0x0000FF);
        Append(m_list, "Green", 0x00FF00);
        Append(m_list, "Transparent", qint32(0xFF000000));
        Append(m_list, "Red", 0x0000FF);
        SelectByText(m_list, "Green");
    }

    List m_list;
};

using Lists = testing::Types<PlainList, QComboBox>;
TYPED_TEST_SUITE(ListHelpers, Lists);

} // namespace

TYPED_TEST(ListHelpers, FindingGivesTheFirstEntryWithTheData)
{
    EXPECT_EQ(FindByItemData(this->m_list, 0x0000FF), 0);
    EXPECT_EQ(FindByItemData(this->m_list, qint32(0xFF000000)), 2);
}

TYPED_TEST(ListHelpers, FindingWhatIsNotThereGivesMinusOne)
{
    EXPECT_EQ(FindByItemData(this->m_list, 0x123456), -1);
    TypeParam empty;
    EXPECT_EQ(FindByItemData(empty, 0), -1);
}

TYPED_TEST(ListHelpers, FindingLeavesTheSelection)
{
    FindByItemData(this->m_list, 0x0000FF);
    EXPECT_EQ(Selected(this->m_list), 1);
}

TYPED_TEST(ListHelpers, SelectingByDataSelectsTheEntryFound)
{
    EXPECT_EQ(SelectByItemData(this->m_list, qint32(0xFF000000)), 2);
    EXPECT_EQ(Selected(this->m_list), 2);
}

TYPED_TEST(ListHelpers, SelectingMissingDataSelectsNothing)
{
    EXPECT_EQ(SelectByItemData(this->m_list, 0x123456), -1);
    EXPECT_EQ(Selected(this->m_list), -1);
}

TYPED_TEST(ListHelpers, SelectingMissingDataCanKeepTheSelection)
{
    EXPECT_EQ(SelectByItemData(this->m_list, 0x123456, WhenMissing::KeepSelection), -1);
    EXPECT_EQ(Selected(this->m_list), 1);
}

TYPED_TEST(ListHelpers, SelectingByTextSelectsTheFirstEqualEntry)
{
    SelectByText(this->m_list, "Red");
    EXPECT_EQ(Selected(this->m_list), 0);
}

TYPED_TEST(ListHelpers, SelectingAMissingTextLeavesTheSelection)
{
    SelectByText(this->m_list, "Blue");
    SelectByText(this->m_list, "red");
    EXPECT_EQ(Selected(this->m_list), 1);
}

TEST(ListHelpersOfQComboBox, AnEntryWithoutANumberMatchesNoNumber)
{
    QComboBox list;
    list.addItem("No data");
    list.addItem("Text", "dash");
    list.addItem("Zero", 0);
    EXPECT_EQ(FindByItemData(list, 0), 2);
}

} // namespace Orvane
