// SPDX-License-Identifier: MIT
#include "component/dialog/panel/NarrowCombo.h"

#include "component/dialog/EditorFixture.h"

#include <QAbstractItemView>

#include <gtest/gtest.h>

namespace Orvane::Testing {

namespace {

void Fill(QComboBox& list, int letters, const QString& placeholder, int points)
{
    QFont font = list.font();
    font.setPointSize(points);
    list.setFont(font);
    list.setMinimumContentsLength(letters);
    list.setPlaceholderText(placeholder);
    list.addItems({"short", "a name that is much longer than the list is wide"});
}

class ListsOfTheForm : public EditorFixture
{
};

} // namespace

TEST_F(ListsOfTheForm, AreMadeWhenTheUserOpensThem)
{
    AddTown();
    Open();
    ClickLayer("Roads");
    for (const QComboBox* list : Form()->findChildren<QComboBox*>())
        EXPECT_EQ(list->findChild<QAbstractItemView*>(), nullptr) << list->objectName().toStdString();
    auto& style = Find<QComboBox>("cboStyle");
    style.showPopup();
    EXPECT_NE(style.findChild<QAbstractItemView*>(), nullptr);
    style.hidePopup();
}

TEST(NarrowCombo, HasTheSizeOfAComboBoxThatAdjustsToItsLengthAlone)
{
    for (const int points : {7, 12, 30}) {
        for (const QString& placeholder : {QString(), QString(" "), QString(60, QLatin1Char('m'))}) {
            NarrowCombo narrow;
            Fill(narrow, 10, placeholder, points);
            QComboBox usual;
            Fill(usual, 10, placeholder, points);
            usual.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
            EXPECT_EQ(narrow.sizeHint(), usual.sizeHint()) << points << " " << placeholder.toStdString();
            EXPECT_EQ(narrow.minimumSizeHint(), usual.minimumSizeHint());
        }
    }
}

TEST(NarrowCombo, IsShownWithoutMakingItsList)
{
    NarrowCombo list;
    list.setMinimumContentsLength(10);
    list.addItems({"one", "two"});
    list.setCurrentIndex(1);
    list.show();
    list.grab();
    EXPECT_EQ(list.findChild<QAbstractItemView*>(), nullptr);
}

} // namespace Orvane::Testing
