// SPDX-License-Identifier: MIT
#include "sweep/DialogUser.h"
#include "sweep/SweepCommand.h"

namespace Orvane::Testing {

namespace {

using UserAct = std::function<void(DialogUser&)>;

constexpr int GroupsTab = 1;
constexpr int LayersTab = 2;

CommandPreparation InDialog(int tab, const QString& node, const UserAct& act)
{
    return [tab, node, act](const SweepBench& bench) -> PreparedCommand {
        const auto user = std::make_shared<DialogUser>(bench);
        user->ClickTab(tab);
        user->Finish();
        const auto run = [user, node, act] {
            user->ClickNode(node);
            act(*user);
            user->Finish();
        };
        return {run, &user->Store()};
    };
}

SweepCommand OnLayer(const std::string& name, const UserAct& act)
{
    return {"layer control: " + name, InDialog(LayersTab, QStringLiteral("Roads"), act)};
}

SweepCommand OnGroup(const std::string& name, const UserAct& act)
{
    return {"layer control: " + name, InDialog(GroupsTab, QStringLiteral("Transport"), act)};
}

void Hide(DialogUser& user)
{
    user.Click("chkVisible");
    user.Click("chkSelectable");
    user.Click("cmdApply");
}

void MakeBackdrop(DialogUser& user)
{
    user.Click("Backdrop");
    user.Click("cmdApply");
}

void ChangeCode(DialogUser& user)
{
    user.DoubleClick("lblCode");
    user.Click("cmdApply");
}

void ChangeAll(DialogUser& user)
{
    user.DoubleClick("lblCode");
    user.Click("Backdrop");
    user.Click("chkVisible");
    user.Click("cmdApply");
}

void ChangeAllButCode(DialogUser& user)
{
    user.Click("Backdrop");
    user.Click("chkVisible");
    user.Click("cmdApply");
}

} // namespace

// A code is stored after the other properties, by itself.
std::vector<SweepCommand> DialogCommands()
{
    SweepCommand all = OnLayer("code, mode and properties", ChangeAll);
    all.firstStep = OnLayer("all but the code", ChangeAllButCode).prepare;
    return {
        OnLayer("edit a layer", Hide),
        OnGroup("edit a group", Hide),
        OnLayer("mode of a layer", MakeBackdrop),
        OnGroup("mode of a group", MakeBackdrop),
        OnLayer("code of a layer", ChangeCode),
        all,
        OnLayer("rename a layer", [](DialogUser& user) { user.Rename(QStringLiteral("Streets")); }),
        OnGroup("rename a group", [](DialogUser& user) { user.Rename(QStringLiteral("Traffic")); }),
        OnLayer("new layer", [](DialogUser& user) { user.Click("cmdNewLayer"); }),
        OnLayer("delete a layer", [](DialogUser& user) { user.Click("cmdDeleteLayer"); }),
    };
}

} // namespace Orvane::Testing
