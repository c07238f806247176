// SPDX-License-Identifier: MIT
#include "hosttests/CheckLists.h"
#include "hosttests/CheckRun.h"
#include "hosttests/ComponentCalls.h"
#include "hosttests/SampleContents.h"

#include <OrvaneShellLib/ValueConversions.h>

namespace Orvane::HostTests {

namespace {

using ComponentCalls::ColumnValues;

QString Day()
{
    return QStringLiteral(u"Day's \"own\" 50% %1 \u9053");
}

QString Night()
{
    return QStringLiteral("Night");
}

// Scales as indexes.
ColumnValues DayLook()
{
    return {{"Visible", true}, {"locked", false},           {"Color", qint32(0x00FFFF)},
            {"Style", 0},      {"OverrideMode", qint16(0)}, {"Priority", 10},
            {"FillStyle", 3},  {"MinVisScale", 20},         {"MaxVisScale", 200}};
}

ColumnValues NightLook()
{
    return {
        {"Visible", false},
        {"locked", true},
        {"Color", qint32(0x800000)},
        {"Style", 0},
        {"OverrideMode", qint16(2)},
        {"Priority", 20},
        {"FillStyle", 7},
        {"MinVisScale", 30},
        {"MaxVisScale", 100}};
}

void ExpectLook(CheckRun& run, const QString& when, qint32 layerID, const ColumnValues& look)
{
    const ColumnValues stored = ComponentCalls::LoadLayer(run.Client(), layerID);
    for (const auto& [column, value] : look) {
        const auto found = stored.find(column);
        run.ExpectValue(
            QStringLiteral("%1 of layer %2 %3")
                .arg(QString::fromLatin1(column.data(), qsizetype(column.size())))
                .arg(layerID)
                .arg(when),
            found == stored.end() ? Value() : found->second, value);
    }
}

void CheckThereIsOne(CheckRun& run)
{
    const QStringList names = run.Client().GetSchemeNames();
    run.Expect(!names.isEmpty(), QStringLiteral("GetSchemeNames is empty"));
    run.Expect(
        names.contains(run.Client().GetCurrentScheme()),
        QStringLiteral("GetCurrentScheme, \"%1\", is not one of GetSchemeNames")
            .arg(run.Client().GetCurrentScheme()));
    for (const QString& name : names) {
        run.ExpectNumber(
            QStringLiteral("how often the scheme \"%1\" is listed").arg(name), names.count(name), 1);
        run.Expect(!name.isEmpty(), QStringLiteral("a scheme has no name"));
    }
    run.ExpectText(
        QStringLiteral("the names at a second call"), run.Client().GetSchemeNames().join(QLatin1Char('|')),
        names.join(QLatin1Char('|')));
}

void CheckCreate(CheckRun& run)
{
    const QStringList before = run.Client().GetSchemeNames();
    run.Client().CreateScheme(Day());
    const QStringList names = run.Client().GetSchemeNames();
    run.ExpectNumber(QStringLiteral("schemes"), names.size(), before.size() + 1);
    run.Expect(names.contains(Day()), QStringLiteral("the new scheme is not in GetSchemeNames"));
    for (const QString& name : before)
        run.Expect(names.contains(name), QStringLiteral("the scheme \"%1\" is gone").arg(name));
    CheckThereIsOne(run);
}

void CheckNameTaken(CheckRun& run)
{
    run.Client().CreateScheme(Day());
    const qsizetype before = run.Client().GetSchemeNames().size();
    run.ExpectError(
        QStringLiteral("CreateScheme with a name that is taken"), [&] { run.Client().CreateScheme(Day()); });
    run.ExpectNumber(QStringLiteral("schemes after the error"), run.Client().GetSchemeNames().size(), before);
}

void CheckLoadIsCurrent(CheckRun& run)
{
    const QString first = run.Client().GetCurrentScheme();
    run.Client().CreateScheme(Day());
    for (const QString& name : {Day(), first, Day()}) {
        run.Client().LoadScheme(name);
        run.ExpectText(
            QStringLiteral("GetCurrentScheme after LoadScheme"), run.Client().GetCurrentScheme(), name);
    }
}

void CheckDelete(CheckRun& run)
{
    const QString first = run.Client().GetCurrentScheme();
    run.Client().CreateScheme(Day());
    run.Client().CreateScheme(Night());
    run.Client().LoadScheme(first);
    run.Client().DeleteScheme(Day());
    const QStringList names = run.Client().GetSchemeNames();
    run.Expect(!names.contains(Day()), QStringLiteral("the deleted scheme is still in GetSchemeNames"));
    run.Expect(names.contains(Night()), QStringLiteral("another scheme was deleted too"));
    run.ExpectText(
        QStringLiteral("GetCurrentScheme after deleting another"), run.Client().GetCurrentScheme(), first);
}

void CheckValues(CheckRun& run)
{
    IStyleEditorClient& client = run.Client();
    ComponentCalls::ApplyToLayer(client, TownLayer::Roads, DayLook());
    client.CreateScheme(Day());
    ComponentCalls::ApplyToLayer(client, TownLayer::Roads, NightLook());
    client.CreateScheme(Night());
    client.LoadScheme(Day());
    ExpectLook(run, QStringLiteral("by day"), TownLayer::Roads, DayLook());
    client.LoadScheme(Night());
    ExpectLook(run, QStringLiteral("by night"), TownLayer::Roads, NightLook());
}

void CheckSave(CheckRun& run)
{
    IStyleEditorClient& client = run.Client();
    ComponentCalls::ApplyToLayer(client, TownLayer::Roads, DayLook());
    client.CreateScheme(Day());
    client.CreateScheme(Night());
    client.LoadScheme(Day());
    ComponentCalls::ApplyToLayer(client, TownLayer::Roads, NightLook());
    client.SaveScheme(Day());
    client.LoadScheme(Night());
    ExpectLook(run, QStringLiteral("in the scheme that was not saved"), TownLayer::Roads, DayLook());
    client.LoadScheme(Day());
    ExpectLook(run, QStringLiteral("in the saved scheme"), TownLayer::Roads, NightLook());
}

void CheckRevert(CheckRun& run)
{
    IStyleEditorClient& client = run.Client();
    ComponentCalls::ApplyToLayer(client, TownLayer::Roads, DayLook());
    client.CreateScheme(Day());
    client.LoadScheme(Day());
    ComponentCalls::ApplyToLayer(client, TownLayer::Roads, NightLook());
    client.LoadScheme(Day());
    ExpectLook(run, QStringLiteral("after loading the current scheme again"), TownLayer::Roads, DayLook());
}

void CheckIdentityStays(CheckRun& run)
{
    IStyleEditorClient& client = run.Client();
    client.CreateScheme(Day());
    client.CreateScheme(Night());
    client.RenameLayer(TownLayer::Roads, QStringLiteral("Streets"));
    ComponentCalls::SetCode(client, TownLayer::Roads, 99);
    client.LoadScheme(Day());
    ExpectLook(
        run, QStringLiteral("after LoadScheme"), TownLayer::Roads,
        {{"Name", QStringLiteral("Streets")}, {"Code", 99}});
}

} // namespace

std::vector<HostCheck> SchemeChecks()
{
    const std::vector<Ability> schemes{Ability::Writing, Ability::Schemes};
    const std::vector<Ability> values{Ability::Writing, Ability::Schemes, Ability::SchemeValues};
    return {
        {"Schemes",
         "ThereIsACurrentScheme",
         "GetSchemeNames: at least one name, each once, always in the same order; GetCurrentScheme is one of "
         "them.",
         {},
         Town,
         CheckThereIsOne},
        {"Schemes",
         "AnEmptyMapHasACurrentSchemeToo",
         "GetSchemeNames and GetCurrentScheme: also without any layer.",
         {},
         NoContents,
         CheckThereIsOne},
        {"Schemes", "ANewSchemeIsListed", "CreateScheme: adds that name, any text, to GetSchemeNames.",
         schemes, Town, CheckCreate},
        {"Schemes", "ATakenNameIsRefused", "CreateScheme: raises a RunTimeError if the name is taken.",
         schemes, Town, CheckNameTaken},
        {"Schemes", "ALoadedSchemeIsCurrent", "LoadScheme: makes the scheme current.", schemes, Town,
         CheckLoadIsCurrent},
        {"Schemes", "ADeletedSchemeIsGone", "DeleteScheme: removes that scheme, and no other.", schemes, Town,
         CheckDelete},
        {"Schemes", "ALoadedSchemeGivesItsValues",
         "LoadScheme: gives the layers the values that they had when the scheme was created.", values, Town,
         CheckValues},
        {"Schemes", "ASavedSchemeHasThePresentValues",
         "SaveScheme: stores the layers' present values in that scheme alone.", values, Town, CheckSave},
        {"Schemes", "LoadingTheCurrentSchemeReverts",
         "LoadScheme: of the current scheme, gives the layers its saved values again.", values, Town,
         CheckRevert},
        {"Schemes", "NamesAndCodesAreNotPartOfAScheme",
         "LoadScheme: leaves names and codes of layers as they are.", values, Town, CheckIdentityStays},
    };
}

} // namespace Orvane::HostTests
