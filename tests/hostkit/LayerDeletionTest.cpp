// SPDX-License-Identifier: MIT
#include "hostkit/LayerDeletion.h"

#include "hostkit/HostKitTest.h"

#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

namespace Orvane::Testing {
namespace {

struct Question {
    QString text;
    QString consequences;
    Qt::TextFormat format = Qt::AutoText;
    QSize size;
};

// Asks, notes the question and answers No.
Question Asked(const LayerDeletion& deletion)
{
    Question question;
    WhenModal([&](QWidget& window) {
        auto& box = dynamic_cast<QMessageBox&>(window);
        question = {box.text(), box.informativeText(), box.textFormat(), box.size()};
        QTest::mouseClick(box.button(QMessageBox::No), Qt::LeftButton);
    });
    EXPECT_FALSE(deletion.Confirm(nullptr));
    return question;
}

QStringList Names(int count)
{
    QStringList names;
    for (int number = 1; number <= count; ++number)
        names << QStringLiteral("N%1").arg(number);
    return names;
}

TEST(LayerDeletion, NamesTheLayerItsGroupsAndItsSchemes)
{
    const Question question = Asked(
        {QStringLiteral("Roads"),
         {QStringLiteral("Lines"), QStringLiteral("Transport")},
         {QStringLiteral("Night")}});
    EXPECT_TRUE(question.text.contains(QStringLiteral("\"Roads\"")));
    EXPECT_TRUE(question.consequences.contains(QStringLiteral("\"Lines\", \"Transport\"")));
    EXPECT_TRUE(question.consequences.contains(QStringLiteral("\"Night\"")));
}

TEST(LayerDeletion, TellsTheNumberOfSeveralLayers)
{
    const Question question
        = Asked({QStringLiteral("1200 layers"), {QStringLiteral("Lines")}, {QStringLiteral("Night")}, 1200});
    EXPECT_EQ(question.text, QStringLiteral("Delete 1,200 layers?"));
    EXPECT_EQ(
        question.consequences,
        QStringLiteral("They will be removed from their groups: \"Lines\".\n"
                       "Their saved values will be removed from the layer schemes: \"Night\".\n"
                       "Their data files stay. You can undo the deletion."));
}

TEST(LayerDeletion, SaysThatTheDataStay)
{
    const Question question = Asked({QStringLiteral("Roads"), {}, {}});
    EXPECT_TRUE(question.consequences.contains(QStringLiteral("data file stays")));
    EXPECT_FALSE(question.consequences.contains(QStringLiteral("groups")));
    EXPECT_FALSE(question.consequences.contains(QStringLiteral("schemes")));
}

TEST(LayerDeletion, CountsWhatIsTooMuchToName)
{
    const Question question = Asked({QStringLiteral("Roads"), Names(8), Names(5)});
    EXPECT_TRUE(question.consequences.contains(QStringLiteral("\"N5\", 3 more")));
    EXPECT_FALSE(question.consequences.contains(QStringLiteral("\"N6\"")));
    EXPECT_FALSE(question.consequences.contains(QStringLiteral("0 more")));
}

TEST(LayerDeletion, GroupsTheDigitsOfALargeNumber)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    const Question question = Asked({QStringLiteral("Roads"), Names(1239), {}});
    EXPECT_TRUE(question.consequences.contains(QStringLiteral("\"N5\", 1.234 more")));
    QLocale::setDefault(before);
}

TEST(LayerDeletion, TakesEveryNameAsPlainTextInAnOrdinaryBox)
{
    const QString name = QStringLiteral("<b>Roads</b>\nand\n") + QString(10000, u'x');
    const Question question = Asked({name, {name, name}, {name}});
    EXPECT_EQ(question.format, Qt::PlainText);
    EXPECT_TRUE(question.text.contains(QStringLiteral("<b>Roads</b> and xxx")));
    EXPECT_LT(question.text.size(), 200);
    EXPECT_LT(question.size.width(), 1000);
    EXPECT_LT(question.size.height(), 600);
}

TEST(LayerDeletion, GoesOnOnlyAfterYes)
{
    WhenModal([](QWidget& box) {
        QTest::mouseClick(dynamic_cast<QMessageBox&>(box).button(QMessageBox::Yes), Qt::LeftButton);
    });
    EXPECT_TRUE(LayerDeletion({QStringLiteral("Roads"), {}, {}}).Confirm(nullptr));
}

} // namespace
} // namespace Orvane::Testing
