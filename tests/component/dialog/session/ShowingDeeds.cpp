// SPDX-License-Identifier: MIT
#include "component/dialog/session/ListUser.h"
#include "component/dialog/session/SessionDeeds.h"
#include "component/dialog/session/SessionFixture.h"

#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QtTest>

#include <algorithm>

namespace Orvane::Testing {

namespace {

using namespace Paper;

/// Picks the entry of the nodes' menu if it is enabled. Returns whether it is.
bool PickEntry(SessionFixture& session, const QString& text)
{
    QMenu* menu = OpenNodeMenu(session);
    if (!menu)
        throw std::runtime_error("no menu");
    QAction* entry = nullptr;
    for (QAction* action : menu->actions())
        entry = action->text() == text ? action : entry;
    const bool isEnabled = entry && entry->isEnabled();
    if (isEnabled)
        menu->setActiveAction(entry);
    QTest::keyClick(menu, isEnabled ? Qt::Key_Return : Qt::Key_Escape);
    session.Settle();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return isEnabled;
}

void CheckBar(SessionFixture& session)
{
    const auto& bar = session.Find(session.ShownList() == Groups ? "tvLayers1_shown" : "tvLayers2_shown");
    EXPECT_EQ(bar.isVisible() ? bar.findChild<QLabel*>()->text() : QString(), session.dialog.BarText());
}

bool HasNodeToShow(const SessionFixture& session)
{
    return session.dialog.tab != 3 && session.dialog.CurrentNode();
}

bool IsAnyChosen(const SessionFixture& session, const std::function<bool(int mode)>& suits)
{
    std::vector<Node> nodes = session.dialog.more;
    nodes.push_back(*session.dialog.CurrentNode());
    const List& list = session.dialog.lists[session.ShownList()];
    return std::any_of(
        nodes.begin(), nodes.end(), [&](const Node& node) { return suits(list.ModeOf(node)); });
}

void ShowOrHide(SessionFixture& session)
{
    if (!HasNodeToShow(session))
        return;
    const bool hides = session.dice.Chance(50);
    const bool isPossible
        = IsAnyChosen(session, [hides](int mode) { return hides ? mode != 4 : mode != 1 && mode != 2; });
    EXPECT_EQ(PickEntry(session, hides ? "Hide" : "Show"), isPossible);
    if (isPossible)
        session.dialog.SetHidden(session.dialog.ChosenLayerIDs(), hides);
}

void ShowOnly(SessionFixture& session)
{
    if (!HasNodeToShow(session))
        return;
    const int redraws = session.dialog.redraws;
    EXPECT_TRUE(PickEntry(session, "Show Only These"));
    session.dialog.ShowOnlyChosen();
    if (session.dialog.redraws > redraws)
        CheckBar(session);
}

// The entry and the bar are as the dialog has read the layers last.
void ShowAllAgain(SessionFixture& session)
{
    if (!HasNodeToShow(session) || !PickEntry(session, "Show All Again"))
        return;
    const int redraws = session.dialog.redraws;
    session.dialog.ShowAllAgain();
    if (session.dialog.redraws > redraws)
        CheckBar(session);
}

// What is not saved keeps its node: the click on the image of another one then does not choose that one.
void ClickImage(SessionFixture& session)
{
    if (session.dialog.tab == 3)
        return;
    QTreeView& tree = ShownTree(session);
    const std::vector<QModelIndex> nodes = VisibleNodes(tree);
    if (nodes.empty())
        return;
    const QModelIndex index = session.dice.OneOf(nodes);
    const Node node = SessionFixture::NodeAt(index);
    const bool hides = session.dialog.lists[session.ShownList()].ModeOf(node) != 4;
    const bool isOther = session.dialog.CurrentNode() != node;
    tree.scrollTo(index);
    const QRect row = tree.visualRect(index);
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, {row.left() + 8, row.center().y()});
    session.Settle();
    if (!isOther || !session.dialog.isModified)
        session.dialog.Choose(node, Dialog::Answer::No);
    session.dialog.SetHidden(session.dialog.LayerIDsOf(node), hides);
}

QString SomeWords(SessionFixture& session)
{
    const QString letters = QStringLiteral("bcdfg");
    QString words;
    for (int count = 1 + session.dice.Below(3); count > 0; --count) {
        words += letters.at(session.dice.Below(int(letters.size())));
        if (session.dice.Chance(30))
            words += QLatin1Char(' ');
    }
    return words;
}

void FindAndGoBack(SessionFixture& session)
{
    if (session.dialog.tab == 3)
        return;
    const ListNumber number = session.ShownList();
    auto& field = session.Find<QLineEdit>(number == Groups ? "txtFind1" : "txtFind2");
    const QString text = SomeWords(session);
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    QTest::keyClicks(&field, text);
    session.Settle();
    session.dialog.Find(words);
    if (!session.dialog.isModified)
        session.CheckNodes(number, session.dialog.lists[number].Found(words));
    session.CheckPanel();
    QTest::keyClick(&field, Qt::Key_Escape);
    session.Settle();
    session.dialog.EndFind();
}

void ClickRow(SessionFixture& session, const QModelIndex& index, Qt::KeyboardModifiers modifiers)
{
    QTreeView& tree = ShownTree(session);
    tree.scrollTo(index);
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, modifiers, tree.visualRect(index).center());
    session.Settle();
}

/// Chooses up to three nodes besides the current one.
void ChooseSome(SessionFixture& session)
{
    std::vector<QModelIndex> nodes = VisibleNodes(ShownTree(session));
    for (int count = 1 + session.dice.Below(3); count > 0; --count) {
        std::erase_if(nodes, [&](const QModelIndex& index) {
            const Node node = SessionFixture::NodeAt(index);
            const auto& more = session.dialog.more;
            return session.dialog.CurrentNode() == node || std::count(more.begin(), more.end(), node) > 0;
        });
        if (nodes.empty())
            return;
        const QModelIndex index = session.dice.OneOf(nodes);
        const Node node = SessionFixture::NodeAt(index);
        const auto answer = session.DecideAnswer();
        ClickRow(session, index, Qt::ControlModifier);
        session.dialog.ChooseMore(node, answer);
        session.CheckPanel();
    }
}

// The lists are compared when one node is chosen again.
void WorkOnSeveral(SessionFixture& session)
{
    if (!HasNodeToShow(session) || !session.CanEdit())
        return;
    static const std::vector<Deed> all = EditingDeeds();
    static const std::vector<Deed> edits(all.begin(), all.begin() + 8); // those of the panel
    ChooseSome(session);
    for (int count = session.dice.Below(4); count > 0; --count)
        session.dice.OneOf(edits).act(session);
    session.CheckPanel();
    if (session.dice.Chance(40)) {
        session.Click("cmdApply");
        session.dialog.Apply();
        session.CheckPanel();
    }
    if (session.dice.Chance(40))
        session.dice.Chance(50) ? ShowOrHide(session) : ShowOnly(session);
    const QModelIndex index = session.dice.OneOf(VisibleNodes(ShownTree(session)));
    const Node node = SessionFixture::NodeAt(index);
    const auto answer = session.DecideAnswer();
    ClickRow(session, index, Qt::NoModifier);
    session.dialog.Choose(node, answer);
}

} // namespace

std::vector<Deed> ShowingDeeds()
{
    return {{"show or hide layers", 4, ShowOrHide},       {"show only some layers", 3, ShowOnly},
            {"show all layers again", 3, ShowAllAgain},   {"click an image", 4, ClickImage},
            {"find nodes and go back", 4, FindAndGoBack}, {"work on several nodes", 4, WorkOnSeveral}};
}

} // namespace Orvane::Testing
