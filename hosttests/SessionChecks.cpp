// SPDX-License-Identifier: MIT
#include "hosttests/CheckLists.h"
#include "hosttests/CheckRun.h"
#include "hosttests/ComponentCalls.h"
#include "hosttests/SampleContents.h"

#include <OrvaneShellLib/LayerQueries.h>
#include <OrvaneShellLib/Transaction.h>
#include <OrvaneShellLib/ValueConversions.h>

namespace Orvane::HostTests {

namespace {

using ComponentCalls::ColumnValues;

// Every property that can be edited; scales as indexes.
ColumnValues AllEdits()
{
    return {
        {"OverrideMode", qint16(1)},
        {"Visible", false},
        {"Selectable", false},
        {"locked", true},
        {"Hitable", false},
        {"SnapRequired", true},
        {"Enquirable", false},
        {"FillForeColor", qint32(0x123456)},
        {"FillBackColor", qint32(0xFF000000u)},
        {"Color", qint32(0xFF0000FFu)},
        {"OutlineStyle", qint32(4)},
        {"FillStyle", qint32(31)},
        {"LineThickness", qint32(-12)},
        {"MinVisScale", qint32(40)},
        {"MaxVisScale", qint32(180)},
        {"Priority", qint32(7)},
        {"Style", qint32(0)}};
}

QString NameOf(std::string_view column)
{
    return QString::fromLatin1(column.data(), qsizetype(column.size()));
}

void ExpectValues(CheckRun& run, const QString& when, qint32 layerID, const ColumnValues& expected)
{
    const ColumnValues found = ComponentCalls::LoadLayer(run.Client(), layerID);
    if (!run.Expect(!found.empty(), QStringLiteral("layer %1 was not found %2").arg(layerID).arg(when)))
        return;
    for (const auto& [column, value] : expected)
        run.ExpectValue(
            QStringLiteral("%1 of layer %2 %3").arg(NameOf(column)).arg(layerID).arg(when), found.at(column),
            value);
}

void CheckOneLayer(CheckRun& run)
{
    const ColumnValues before = ComponentCalls::LoadLayer(run.Client(), TownLayer::Zoning);
    ComponentCalls::ApplyToLayer(run.Client(), TownLayer::Roads, AllEdits());
    ExpectValues(run, QStringLiteral("after it was applied"), TownLayer::Roads, AllEdits());
    ExpectValues(
        run, QStringLiteral("after it was applied"), TownLayer::Roads,
        {{"Name", QStringLiteral("roads")}, {"Code", 10}});
    ExpectValues(run, QStringLiteral("after another one was changed"), TownLayer::Zoning, before);
}

void CheckMissingLayer(CheckRun& run)
{
    run.Expect(
        ComponentCalls::LoadLayer(run.Client(), TownLayer::None).empty(),
        QStringLiteral("a layer that is not there has values"));
    ComponentCalls::ApplyToLayer(run.Client(), TownLayer::None, AllEdits());
    ComponentCalls::SetCode(run.Client(), TownLayer::None, 5);
    run.Expect(!run.Client().IsCodeAssigned(5), QStringLiteral("a layer that is not there got a code"));
}

void CheckGroup(CheckRun& run)
{
    const auto various = ComponentCalls::LoadGroup(run.Client(), TownGroup::Water);
    run.ExpectNumber(QStringLiteral("layers of the group"), qint64(various.size()), 3);
    const ColumnValues edits{{"Visible", false}, {"MinVisScale", 40}, {"Color", qint32(0x00FF00)}};
    ComponentCalls::ApplyToGroup(run.Client(), TownGroup::Water, edits);
    for (const qint32 id : {TownLayer::Roads, TownLayer::Zoning, TownLayer::Rivers}) {
        ExpectValues(run, QStringLiteral("after its group was applied"), id, edits);
        ExpectValues( // what differed and was not edited still differs
            run, QStringLiteral("after its group was applied"), id,
            {{"Priority", run.Contents().Layer(id).Get("Priority")}});
    }
    ExpectValues(
        run, QStringLiteral("outside of the group"), TownLayer::Airports,
        {{"Visible", true}, {"Color", run.Contents().Layer(TownLayer::Airports).Get("Color")}});
}

void ApplyUntilItFails(CheckRun& run)
{
    Transaction transaction(run.Database());
    const auto layers = ComponentCalls::OpenLayersByID(run.Client());
    for (const qint32 id : {TownLayer::Roads, TownLayer::Zoning, TownLayer::Rivers}) {
        ComponentCalls::SeekID(*layers, id);
        run.Client().BeginLayerEdit(*layers);
        layers->SetField("Visible", false);
        if (id == TownLayer::Rivers)
            layers->SetField("Color", Value()); // raises
        run.Client().LayerChanged(id);
        layers->Update();
    }
    transaction.Commit();
}

void CheckFailingGroup(CheckRun& run)
{
    run.ExpectError(
        QStringLiteral("a group whose last layer cannot be written"), [&] { ApplyUntilItFails(run); });
    run.Client().RedrawMap();
    for (const qint32 id : {TownLayer::Roads, TownLayer::Zoning, TownLayer::Rivers})
        ExpectValues(run, QStringLiteral("after the group failed"), id, {{"Visible", true}});
    CheckGroup(run);
}

void CheckListsAreRead(CheckRun& run)
{
    const auto groups = ComponentCalls::OpenGroupsByID(run.Database());
    int rows = 0;
    ComponentCalls::ForEachRow(run.Database(), LayerQueries::Tree(std::nullopt), [&](const IRecordset& row) {
        ++rows;
        const qint32 groupID = ToInt32(row.Field("GroupID"));
        run.Expect(
            ComponentCalls::SeekID(*groups, groupID),
            QStringLiteral("group %1 of the tree has no row").arg(groupID));
        run.Client().LayerDisplayName(ToInt32(row.Field("LayerID")));
        run.Expect(
            run.Contents().Layer(ToInt32(row.Field("LayerID"))).Get("LayerID").IsNumber(),
            QStringLiteral("the row moved while others were read"));
    });
    run.ExpectNumber(QStringLiteral("rows of the tree"), rows, 7);
    for (const QString& query : {LayerQueries::LayerList(), LayerQueries::OneLayer(TownLayer::Roads)})
        ComponentCalls::ForEachRow(run.Database(), query, [&](const IRecordset& row) {
            run.Client().LayerDisplayName(ToInt32(row.Field("LayerID")));
        });
}

void CheckRenamedInList(CheckRun& run)
{
    const auto names = [&run] {
        QStringList found;
        ComponentCalls::ForEachRow(run.Database(), LayerQueries::LayerList(), [&](const IRecordset& row) {
            found << ToText(row.Field("Name"));
        });
        return found;
    };
    names();
    run.Client().RenameLayer(TownLayer::Zoning, QStringLiteral("aardvarks"));
    run.ExpectText(
        QStringLiteral("the first of the list after a rename"), names().value(0),
        QStringLiteral("aardvarks"));
    run.ExpectNumber(QStringLiteral("layers in the list after a rename"), names().size(), 6);
}

void CheckSwitchingSchemes(CheckRun& run)
{
    IStyleEditorClient& client = run.Client();
    const QString first = client.GetCurrentScheme();
    ComponentCalls::ApplyToGroup(client, TownGroup::Water, {{"Visible", true}});
    client.SaveScheme(first);
    client.CreateScheme(QStringLiteral("Second"));
    client.LoadScheme(QStringLiteral("Second"));
    ComponentCalls::ApplyToGroup(client, TownGroup::Water, {{"Visible", false}});
    client.SaveScheme(QStringLiteral("Second"));
    client.LoadScheme(first);
    ExpectValues(run, QStringLiteral("in the first scheme"), TownLayer::Rivers, {{"Visible", true}});
    client.LoadScheme(QStringLiteral("Second"));
    ExpectValues(run, QStringLiteral("in the second scheme"), TownLayer::Rivers, {{"Visible", false}});
    client.LoadScheme(first);
    client.DeleteScheme(QStringLiteral("Second"));
    ExpectValues(
        run, QStringLiteral("after the second scheme was deleted"), TownLayer::Rivers, {{"Visible", true}});
}

} // namespace

std::vector<HostCheck> SessionChecks()
{
    const std::vector<Ability> writing{Ability::Writing};
    return {
        {"Session",
         "BothListsAreRead",
         "While a query is open, groups are sought and names of layers are asked for; the query stays on its "
         "row.",
         {},
         Town,
         CheckListsAreRead},
        {"Session", "ALayerIsEditedAndApplied",
         "Seek, BeginLayerEdit, SetField for each property, LayerChanged, Update, RedrawMap: every property "
         "is read back as it was set.",
         writing, Town, CheckOneLayer},
        {"Session", "AMissingLayerIsNeitherReadNorWritten",
         "A layer that does not exist is NoMatch; nothing is made for it.", writing, Town, CheckMissingLayer},
        {"Session", "AGroupWithVariousValuesIsApplied",
         "One cursor and one transaction for all layers of a group: what was set is in each of them, the "
         "rest "
         "stays as it was in each.",
         writing, Town, CheckGroup},
        {"Session", "AGroupIsAppliedWhollyOrNotAtAll",
         "If one layer of a group fails, none is changed, and the next apply works.", writing, Town,
         CheckFailingGroup},
        {"Session", "ARenamedLayerTakesItsPlaceInTheList",
         "After RenameLayer, LayerQueries::LayerList has the new name, at its place.", writing, Town,
         CheckRenamedInList},
        {"Session",
         "SchemesAreSwitched",
         "Save, create, load, change, load again, delete: each scheme keeps its own values.",
         {Ability::Writing, Ability::Schemes, Ability::SchemeValues},
         Town,
         CheckSwitchingSchemes},
    };
}

} // namespace Orvane::HostTests
