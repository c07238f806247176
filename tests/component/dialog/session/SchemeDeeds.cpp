// SPDX-License-Identifier: MIT
#include "component/dialog/session/SessionDeeds.h"
#include "component/dialog/session/SessionFixture.h"

#include <QComboBox>
#include <QtTest>

namespace Orvane::Testing {

namespace {

using namespace Paper;

QComboBox& SchemeList(SessionFixture& session)
{
    return session.Find<QComboBox>("cmbScheme");
}

// Each scheme changes the layers differently, so that a switch is visible.
void ReachForScheme(SessionFixture& session, const QString& name)
{
    for (auto& [layerID, layer] : session.map.layers) {
        layer.columns[Visible] = (layerID + name.size()) % 2;
        session.host.SetLayerColumn(layerID, "Visible", layer.columns[Visible] != 0);
    }
}

void AfterSchemeLoaded(SessionFixture& session)
{
    session.dialog.ForgetLists();
    EXPECT_EQ(SchemeList(session).currentText(), session.host.currentScheme);
}

void SwitchScheme(SessionFixture& session)
{
    if (session.dialog.tab != 3)
        return;
    QComboBox& list = SchemeList(session);
    const QString before = list.currentText();
    const auto answer = session.DecideAnswer();
    session.host.OnLoadScheme = [&](const QString& name) { ReachForScheme(session, name); };
    QTest::keyClick(&list, session.dice.Chance(50) ? Qt::Key_Down : Qt::Key_Up);
    session.Settle();
    session.host.OnLoadScheme = nullptr;
    if (session.host.currentScheme != before)
        AfterSchemeLoaded(session);
    const QStringList boxes = session.user.TakeBoxes();
    EXPECT_EQ(session.host.currentScheme != before, !boxes.isEmpty() && answer == Dialog::Answer::Yes);
    EXPECT_EQ(list.currentText(), session.host.currentScheme);
}

void NewScheme(SessionFixture& session)
{
    if (session.dialog.tab != 3 || session.host.schemeNames.size() > 5)
        return;
    const QString name = session.NewName();
    session.host.promptAnswers = {{true, "  "}, {session.dice.Chance(70), ' ' + name}};
    session.Click("cmdNew");
    session.dialog.Tell("Please supply a non-blank name, or cancel.");
    EXPECT_EQ(SchemeList(session).count(), session.host.schemeNames.size());
}

void SaveScheme(SessionFixture& session)
{
    if (session.dialog.tab != 3)
        return;
    const QString name = session.host.currentScheme;
    session.dialog.Tell(QStringLiteral("Save current layer setup to scheme '%1'?").arg(name));
    const auto answer = session.DecideAnswer();
    session.Click("cmdSave");
    EXPECT_EQ(session.host.Log().CallsTo("SaveScheme").size(), answer == Dialog::Answer::Yes ? 1 : 0);
}

void RevertScheme(SessionFixture& session)
{
    if (session.dialog.tab != 3)
        return;
    const QString name = session.host.currentScheme;
    session.dialog.Tell(QStringLiteral("Revert to the last saved values in layer scheme '%1'?").arg(name));
    const auto answer = session.DecideAnswer();
    session.host.OnLoadScheme = [&](const QString& loaded) { ReachForScheme(session, loaded); };
    session.Click("cmdRevert");
    session.host.OnLoadScheme = nullptr;
    if (answer == Dialog::Answer::Yes)
        AfterSchemeLoaded(session);
}

void DeleteScheme(SessionFixture& session)
{
    if (session.dialog.tab != 3)
        return;
    const QString name = session.host.currentScheme;
    const bool isLast = session.host.schemeNames.size() == 1;
    session.dialog.Tell(
        isLast ? QStringLiteral("The last layer scheme cannot be deleted.")
               : QStringLiteral("Delete layer scheme '%1'?").arg(name));
    const bool deletes = session.DecideAnswer() == Dialog::Answer::Yes && !isLast;
    session.host.OnLoadScheme = [&](const QString& loaded) { ReachForScheme(session, loaded); };
    session.Click("cmdDelete");
    session.host.OnLoadScheme = nullptr;
    EXPECT_EQ(session.host.schemeNames.contains(name), !deletes);
    if (deletes)
        AfterSchemeLoaded(session);
}

} // namespace

std::vector<Deed> SchemeDeeds()
{
    return {
        {"switch the scheme", 3, SwitchScheme},
        {"create a scheme", 1, NewScheme},
        {"save a scheme", 1, SaveScheme},
        {"revert a scheme", 1, RevertScheme},
        {"delete a scheme", 1, DeleteScheme}};
}

} // namespace Orvane::Testing
