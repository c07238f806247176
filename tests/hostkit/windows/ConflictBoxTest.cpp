// SPDX-License-Identifier: MIT
#include "hostkit/windows/ConflictBox.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

/// Asks, and presses the button with that text, or Escape for an empty text.
class AskedUser
{
public:
    explicit AskedUser(const QString& button) : m_button(button) { }

    ConflictChoice Choose(const std::vector<ConflictingEdit>& edits)
    {
        QTimer::singleShot(0, &m_owner, [this] { Answer(); });
        return AskInConflictBox(&m_owner, QStringLiteral("Roads"), edits);
    }

    QString text;
    QString lines;

private:
    void Answer()
    {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        text = box->text();
        lines = box->informativeText();
        for (QAbstractButton* button : box->buttons()) {
            if (button->text() == m_button)
                return QTest::mouseClick(button, Qt::LeftButton);
        }
        QTest::keyClick(box, Qt::Key_Escape);
    }

    QWidget m_owner;
    QString m_button;
};

const std::vector<ConflictingEdit> edits{
    {QStringLiteral("Visible"), QStringLiteral("yes"), QStringLiteral("no"), 1},
    {QStringLiteral("Priority"), QStringLiteral("5"), QStringLiteral("9"), 3}};

} // namespace

TEST(ConflictBox, NamesTheNodeAndEachPropertyWithBothValues)
{
    AskedUser user("");
    EXPECT_EQ(user.Choose(edits), ConflictChoice::Cancel);
    EXPECT_EQ(user.text, "What you edited was changed elsewhere meanwhile: Roads");
    EXPECT_EQ(
        user.lines,
        "Visible: your value is yes, stored is no\nPriority: your value is 5, stored is 9 (in 3 layers)");
}

TEST(ConflictBox, TheButtonsSayWhatIsStored)
{
    EXPECT_EQ(AskedUser("&Store My Values").Choose(edits), ConflictChoice::Overwrite);
    EXPECT_EQ(AskedUser("&Keep the Stored Ones").Choose(edits), ConflictChoice::KeepStored);
}

TEST(ConflictBox, IsCancelledWithItsOwner)
{
    auto* owner = new QWidget;
    QTimer::singleShot(0, qApp, [owner] { delete owner; });
    EXPECT_EQ(AskInConflictBox(owner, "Roads", edits), ConflictChoice::Cancel);
}

} // namespace Orvane
