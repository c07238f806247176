// SPDX-License-Identifier: MIT
#include "hosttests/DialogChecks.h"

#include "hosttests/ComponentCalls.h"
#include "hosttests/DialogSession.h"
#include "hosttests/SampleContents.h"

#include <OrvaneShellLib/ForwardingClient.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QWidget>

namespace Orvane::HostTests {

namespace {

constexpr int ownErrorNumber = 14711;

// The host, with a rename that fails.
class FailingRename : public ForwardingClient
{
    using ForwardingClient::ForwardingClient;

    void IStyleEditorClient_RenameLayer(qint32, const QString&) override
    {
        throw RunTimeError(ownErrorNumber, QStringLiteral("Not today"), QStringLiteral("Host"));
    }
};

QString ListedName(CheckRun& run, qint32 layerID)
{
    return run.Client().LayerDisplayName(layerID);
}

QString ListedLayers(CheckRun& run)
{
    QStringList names;
    for (const qint32 id :
         {TownLayer::Airports, TownLayer::Drafts, TownLayer::Quoted, TownLayer::Rivers, TownLayer::Roads,
          TownLayer::Zoning})
        names << ListedName(run, id);
    return names.join(QLatin1Char('|'));
}

void CheckDialogList(CheckRun& run, const QString& component)
{
    DialogSession session(run, run.Client(), component, false);
    run.Expect(session.Editor().Visible(), QStringLiteral("the dialog is not visible"));
    run.ExpectText(
        QStringLiteral("the dialog's layers"), session.Listed().join(QLatin1Char('|')), ListedLayers(run));
    for (const QString& name : session.Listed())
        session.Choose(name);
}

void CheckDialogGroups(CheckRun& run, const QString& component)
{
    DialogSession session(run, run.Client(), component, true);
    const QString roads = ListedName(run, TownLayer::Roads);
    const QStringList expected{
        QStringLiteral("Traffic"),
        ListedName(run, TownLayer::Airports),
        roads,
        QStringLiteral("Water"),
        roads,
        ListedName(run, TownLayer::Zoning),
        ListedName(run, TownLayer::Rivers),
        QStringLiteral(u"King's 'Cross' \u9053"),
        ListedName(run, TownLayer::Quoted)};
    run.ExpectText(
        QStringLiteral("the dialog's groups and layers"), session.Listed().join(QLatin1Char('|')),
        expected.join(QLatin1Char('|')));
    session.Choose(QStringLiteral("Water"));
    session.Choose(QStringLiteral("Traffic"));
}

Value DialogVisibleOf(CheckRun& run, qint32 layerID)
{
    return ComponentCalls::LoadLayer(run.Client(), layerID).at("Visible");
}

void CheckDialogApply(CheckRun& run, const QString& component)
{
    DialogSession session(run, run.Client(), component, false);
    session.Choose(ListedName(run, TownLayer::Rivers));
    session.Tick("chkVisible");
    run.Expect(session.Form().HasPendingEdits(), QStringLiteral("a click on Visible is no edit"));
    session.Apply();
    run.ExpectValue(QStringLiteral("Visible of the layer"), DialogVisibleOf(run, TownLayer::Rivers), false);
    run.ExpectValue(QStringLiteral("Visible of another layer"), DialogVisibleOf(run, TownLayer::Roads), true);
}

void CheckDialogGroupApply(CheckRun& run, const QString& component)
{
    DialogSession session(run, run.Client(), component, true);
    session.Choose(QStringLiteral("Water"));
    session.Tick("chkVisible");
    session.Apply();
    for (const qint32 id : {TownLayer::Roads, TownLayer::Zoning, TownLayer::Rivers})
        run.ExpectValue(
            QStringLiteral("Visible of layer %1 of the group").arg(id), DialogVisibleOf(run, id), false);
    run.ExpectValue(
        QStringLiteral("Visible outside of the group"), DialogVisibleOf(run, TownLayer::Airports), true);
}

void CheckDialogRename(CheckRun& run, const QString& component)
{
    DialogSession session(run, run.Client(), component, false);
    session.Form().SetLayerName(TownLayer::Rivers, QStringLiteral("Brooks' \"own\""));
    run.Expect(
        ListedName(run, TownLayer::Rivers).contains(QStringLiteral("Brooks' \"own\"")),
        QStringLiteral("LayerDisplayName has not the new name"));
    run.Expect(
        session.Listed().contains(ListedName(run, TownLayer::Rivers)),
        QStringLiteral("the dialog does not list the new name"));
    session.Form().Refresh();
    run.Expect(
        session.Listed().contains(ListedName(run, TownLayer::Rivers)),
        QStringLiteral("the dialog does not list the new name after Refresh"));
}

void CheckDialogNewLayer(CheckRun& run, const QString& component)
{
    DialogSession session(run, run.Client(), component, false);
    const qsizetype before = session.Listed().size();
    session.Form().AddNewLayer(run.Client().CreateLayer());
    run.ExpectNumber(QStringLiteral("layers in the dialog"), session.Listed().size(), before + 1);
}

void CheckDialogViewState(CheckRun& run, const QString& component)
{
    const auto key = QStringLiteral("DrawStyleEditor::HostTests");
    QWidget form;
    {
        DialogSession session(run, run.Client(), component, true);
        run.Client().WriteSetting(&form, key, QString());
        session.Editor().Visible(false);
    }
    run.Expect(
        !run.Client().ReadSetting(&form, key).isEmpty(),
        QStringLiteral("the dialog's place was not kept when it was closed"));
}

void CheckDialogError(CheckRun& run, const QString& component)
{
    FailingRename client(run.Client());
    DialogSession session(run, client, component, false);
    try {
        session.Form().SetLayerName(TownLayer::Rivers, QStringLiteral("Brooks"));
        run.Expect(false, QStringLiteral("the error did not arrive"));
    } catch (const RunTimeError& error) {
        run.ExpectNumber(QStringLiteral("the error's number"), error.Number(), ownErrorNumber);
        run.ExpectText(QStringLiteral("the error's text"), error.Description(), QStringLiteral("Not today"));
        run.ExpectText(QStringLiteral("the error's source"), error.Source(), QStringLiteral("Host"));
    }
    run.ExpectText(
        QStringLiteral("the layers after the error"), session.Listed().join(QLatin1Char('|')),
        ListedLayers(run));
}

} // namespace

std::vector<HostCheck> DialogChecks(const QString& component)
{
    const auto with = [component](void (*check)(CheckRun&, const QString&)) {
        return [component, check](CheckRun& run) {
            if (HasWindows(run))
                check(run, component);
        };
    };
    const std::vector<Ability> writing{Ability::Writing};
    return {
        {"Dialog",
         "ItListsAndShowsAllLayers",
         "The dialog lists the layers by name, and shows each of them without a message.",
         {},
         Town,
         with(CheckDialogList)},
        {"Dialog",
         "ItListsAndShowsAllGroups",
         "The dialog lists the groups with their layers, and shows what they have in common.",
         {},
         Town,
         with(CheckDialogGroups)},
        {"Dialog", "AnEditReachesTheLayer", "What the user applies to a layer is stored in it alone.",
         writing, Town, with(CheckDialogApply)},
        {"Dialog", "AnEditReachesAllLayersOfAGroup",
         "What the user applies to a group is stored in all its layers.", writing, Town,
         with(CheckDialogGroupApply)},
        {"Dialog", "ARenamedLayerIsListed", "After RenameLayer, LayerDisplayName has the new name.", writing,
         Town, with(CheckDialogRename)},
        {"Dialog",
         "ANewLayerIsListed",
         "LayerQueries::OneLayer finds a layer that CreateLayer made.",
         {Ability::Writing, Ability::CreatingLayers},
         Town,
         with(CheckDialogNewLayer)},
        {"Dialog",
         "ItsPlaceIsKept",
         "WriteSetting keeps the dialog's place when it is closed.",
         {},
         Town,
         with(CheckDialogViewState)},
        {"Dialog",
         "ErrorsOfTheHostArriveUnchanged",
         "An error that the host raises comes back to it with its number, text and source.",
         {},
         Town,
         with(CheckDialogError)},
    };
}

} // namespace Orvane::HostTests
