// SPDX-License-Identifier: MIT
#include "component/dialog/EndedMeanwhileFixture.h"
#include "component/dialog/session/ListUser.h"
#include "component/dialog/session/SessionDeeds.h"
#include "component/dialog/session/SessionFixture.h"
#include "support/PickByMouse.h"

#include <QContextMenuEvent>
#include <QLineEdit>
#include <QtTest>

namespace Orvane::Testing {

namespace {

using namespace Paper;

/// Ends the dialog once, at the first occasion.
class End
{
public:
    explicit End(SessionFixture& session) : m_session(session) { }

    void operator()()
    {
        if (std::exchange(m_isOver, true))
            return;
        m_session.dice.Chance(50) ? m_session.EditorForm().UnloadWithoutApply() : delete m_session.Form();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

private:
    SessionFixture& m_session;
    bool m_isOver = false;
};

// Each begins with what the user does to the control; what then waits is up to the dialog.

void OpenAList(SessionFixture& session)
{
    if (!session.CanEdit())
        return;
    const char* name = session.dice.OneOf(std::array{"cmbColor1", "cmbFillStyles", "cmbLineStyles"});
    QTest::mouseClick(&session.Find(name), Qt::LeftButton);
}

void PickTheCustomItem(SessionFixture& session)
{
    if (!session.CanEdit())
        return;
    auto& list = session.Find<QComboBox>(session.dice.OneOf(std::array{"cmbColor0", "cmbLineStyles"}));
    PickByMouse(list, list.findText("Custom", Qt::MatchStartsWith));
}

void OpenASlider(SessionFixture& session)
{
    if (session.CanEdit())
        QTest::mousePress(
            &session.Find(session.dice.OneOf(std::array{"cmdEditMinScale", "cmdEditPriority"})),
            Qt::LeftButton);
}

void TypeAName(SessionFixture& session)
{
    if (session.dialog.tab == 3)
        return;
    QTest::keyClick(&ShownTree(session), Qt::Key_F2);
    if (auto* editor = ShownTree(session).findChild<QLineEdit*>("txtNodeName"))
        QTest::keyClicks(editor, "Streets");
}

void OpenTheMenu(SessionFixture& session)
{
    if (session.dialog.tab == 3)
        return;
    QTreeView& tree = ShownTree(session);
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, tree.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&tree, &event);
}

void LeaveEdits(SessionFixture& session)
{
    if (!session.CanEdit())
        return;
    session.Click("chkLocked");
    session.Click("Hidden");
    session.ClickTab(session.dialog.tab == 1 ? 2 : 1);
}

void AskForACode(SessionFixture& session)
{
    if (session.dialog.tab == 2 && session.dialog.panel.canEditCode)
        QTest::mouseDClick(&session.Find("lblCode"), Qt::LeftButton);
}

void AskAboutAScheme(SessionFixture& session)
{
    if (session.dialog.tab == 3)
        session.Click(session.dice.OneOf(std::array{"cmdDelete", "cmdRevert", "cmdNew"}));
}

void DeleteASystemLayer(SessionFixture& session)
{
    const auto layer = session.dialog.panel.node ? session.map.layers.find(session.dialog.panel.node->layerID)
                                                 : session.map.layers.end();
    if (session.dialog.tab == 2 && layer != session.map.layers.end() && layer->second.isSystem)
        session.Click("cmdDeleteLayer");
}

using Opening = void (*)(SessionFixture&);
constexpr std::array<Opening, 9> openings{OpenAList,   PickTheCustomItem, OpenASlider,
                                          TypeAName,   OpenTheMenu,       LeaveEdits,
                                          AskForACode, AskAboutAScheme,   DeleteASystemLayer};

void EndWhileSomethingWaits(SessionFixture& session)
{
    End end(session);
    session.host.onPrompt = [&] { end(); };
    session.host.Shell().OnShowModal = [&](QWidget*) { end(); };
    {
        const WhenOpened<QDialog> dialogs([&] { end(); });
        session.dice.OneOf(openings)(session);
        session.Settle();
        end(); // of what does not wait inside the event: a list, a menu, a name
        session.Settle();
    }
    session.host.onPrompt = nullptr;
    session.host.Shell().OnShowModal = nullptr;
    session.user.TakeBoxes();
    EXPECT_EQ(session.Form(), nullptr);
    session.OpenEditor();
}

} // namespace

std::vector<Deed> EndingDeeds()
{
    return {{"end while something waits", 6, EndWhileSomethingWaits}};
}

} // namespace Orvane::Testing
