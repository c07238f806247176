// SPDX-License-Identifier: MIT
#include "hosttests/CheckLists.h"
#include "hosttests/CheckRun.h"
#include "hosttests/ComponentCalls.h"
#include "hosttests/SampleContents.h"

#include <OrvaneShellLib/LayerQueries.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <limits>

namespace Orvane::HostTests {

namespace {

using ComponentCalls::OpenLayersByID;
using ComponentCalls::SeekID;

void CheckSeekFinds(CheckRun& run)
{
    const auto layers = OpenLayersByID(run.Client());
    for (const qint32 id : {TownLayer::Zoning, TownLayer::Quoted, TownLayer::Hidden, TownLayer::Roads}) {
        layers->Seek("=", id);
        const QString what = QStringLiteral("after Seek for layer %1, ").arg(id);
        if (!run.Expect(!layers->NoMatch(), what + QStringLiteral("NoMatch is true")))
            continue;
        run.Expect(!layers->AtEOF(), what + QStringLiteral("AtEOF is true"));
        run.ExpectValue(what + QStringLiteral("LayerID"), layers->Field("LayerID"), id);
    }
}

void CheckSeekFails(CheckRun& run)
{
    const auto layers = OpenLayersByID(run.Client());
    for (const qint32 id :
         {TownLayer::None, qint32(0), qint32(-1), std::numeric_limits<qint32>::min(),
          std::numeric_limits<qint32>::max()}) {
        SeekID(*layers, TownLayer::Roads);
        layers->Seek("=", id);
        const QString what = QStringLiteral("after Seek for %1, which is not there, ").arg(id);
        run.Expect(layers->NoMatch(), what + QStringLiteral("NoMatch is false"));
        run.Expect(layers->AtEOF(), what + QStringLiteral("AtEOF is false"));
    }
    const auto groups = ComponentCalls::OpenGroupsByID(run.Database());
    run.Expect(!SeekID(*groups, TownGroup::None), QStringLiteral("Seek found a group that is not there"));
}

void CheckSeekAgain(CheckRun& run)
{
    const auto layers = OpenLayersByID(run.Client());
    run.Expect(!SeekID(*layers, TownLayer::None), QStringLiteral("Seek found a layer that is not there"));
    run.Expect(SeekID(*layers, TownLayer::Rivers), QStringLiteral("a Seek after one that failed fails too"));
}

void CheckSeekByIDAlone(CheckRun& run)
{
    const auto layers = OpenLayersByID(run.Client());
    run.Expect(!SeekID(*layers, 12), QStringLiteral("Seek found a layer by its Code, 12"));
    const auto groups = ComponentCalls::OpenGroupsByID(run.Database());
    run.Expect(!SeekID(*groups, 2), QStringLiteral("Seek found a group by its GroupOrdering, 2"));
}

void CheckOtherComparison(CheckRun& run)
{
    for (const char* comparison : {"<", ">=", ""}) {
        const auto layers = OpenLayersByID(run.Client());
        run.ExpectError(QStringLiteral("Seek with \"%1\"").arg(QLatin1String(comparison)), [&] {
            layers->Seek(comparison, TownLayer::Roads);
        });
    }
}

void CheckNoRowAtFirst(CheckRun& run)
{
    run.Expect(
        run.Client().LayersTable()->AtEOF(),
        QStringLiteral("AtEOF of LayersTable() is false before the first Seek"));
    run.Expect(
        ComponentCalls::OpenGroupsByID(run.Database())->AtEOF(),
        QStringLiteral("AtEOF of LayerGroups is false before the first Seek"));
}

void CheckLayersByName(CheckRun& run)
{
    const auto layers = run.Database().OpenRecordset(QStringLiteral("Layers"));
    if (!run.Expect(layers != nullptr, QStringLiteral("OpenRecordset returned nullptr")))
        return;
    layers->Index("LayerIDIDX");
    layers->Seek("=", TownLayer::Rivers);
    if (run.Expect(!layers->NoMatch(), QStringLiteral("Seek did not find a layer")))
        run.ExpectValue(QStringLiteral("Name"), layers->Field("Name"), QStringLiteral("Rivers"));
}

void CheckForwardOnly(CheckRun& run)
{
    const auto rows = run.Database().OpenRecordset(LayerQueries::LayerList());
    int count = 0;
    for (; !rows->AtEOF() && count < 100; rows->MoveNext())
        ++count;
    run.ExpectNumber(QStringLiteral("rows of LayerList before AtEOF"), count, 6);
    run.Expect(rows->AtEOF(), QStringLiteral("AtEOF is false after the last row"));
}

void CheckClose(CheckRun& run)
{
    const auto layers = OpenLayersByID(run.Client());
    const auto rows = run.Database().OpenRecordset(LayerQueries::LayerList());
    SeekID(*layers, TownLayer::Roads);
    for (int times = 0; times < 2; ++times) {
        layers->Close();
        rows->Close();
    }
}

void CheckCursorsTogether(CheckRun& run)
{
    const auto rows = run.Database().OpenRecordset(LayerQueries::LayerList());
    const auto groups = ComponentCalls::OpenGroupsByID(run.Database());
    const auto first = OpenLayersByID(run.Client());
    const auto second = OpenLayersByID(run.Client());
    const auto others = run.Database().OpenRecordset(LayerQueries::LayerList());
    SeekID(*first, TownLayer::Roads);
    SeekID(*second, TownLayer::Rivers);
    rows->MoveNext();
    run.Client().LayerDisplayName(TownLayer::Roads);
    run.Expect(SeekID(*groups, TownGroup::Water), QStringLiteral("Seek in LayerGroups failed"));
    run.ExpectValue(QStringLiteral("the first cursor's LayerID"), first->Field("LayerID"), TownLayer::Roads);
    run.ExpectValue(
        QStringLiteral("the second cursor's LayerID"), second->Field("LayerID"), TownLayer::Rivers);
    run.ExpectValue(QStringLiteral("the moved query's LayerID"), rows->Field("LayerID"), TownLayer::Drafts);
    run.ExpectValue(
        QStringLiteral("the other query's LayerID"), others->Field("LayerID"), TownLayer::Airports);
}

void CheckErrorTypes(CheckRun& run)
{
    run.Allow([&] {
        run.Expect(
            run.Database().OpenRecordset(QStringLiteral("NoSuchTable")) != nullptr,
            QStringLiteral("OpenRecordset of an unknown table returned nullptr; it may raise"));
    });
    run.Allow([&] {
        run.Expect(
            run.Database().OpenRecordset(QStringLiteral("SELECT nonsense FROM nowhere")) != nullptr,
            QStringLiteral("OpenRecordset of a query with a fault returned nullptr; it may raise"));
    });
    run.Allow([&] { run.Client().LayersTable()->Index("NoSuchIndex"); });
    run.Allow([&] {
        const auto layers = OpenLayersByID(run.Client());
        SeekID(*layers, TownLayer::Roads);
        layers->Field("NoSuchColumn");
    });
    run.Allow([&] { run.Client().LayersTable()->Field("Name"); });
    run.ExpectIDs(
        QStringLiteral("OneLayer after these errors"),
        ComponentCalls::IDsIn(run.Database(), LayerQueries::OneLayer(TownLayer::Roads), "LayerID"),
        {TownLayer::Roads});
}

} // namespace

std::vector<HostCheck> SeekChecks()
{
    return {
        {"Cursors",
         "SeekFindsTheRow",
         "IRecordset::Seek: moves to the row with that key, wherever the cursor was; NoMatch and AtEOF are "
         "then false. Hidden layers are found too.",
         {},
         Town,
         CheckSeekFinds},
        {"Cursors",
         "SeekForAMissingRowIsNoMatch",
         "IRecordset::Seek: if there is no such row, NoMatch and AtEOF are true, and no error is raised.",
         {},
         Town,
         CheckSeekFails},
        {"Cursors",
         "SeekWorksAgainAfterNoMatch",
         "IRecordset::Seek: a cursor can seek again after a Seek that found nothing.",
         {},
         Town,
         CheckSeekAgain},
        {"Cursors",
         "SeekGoesByTheIDAlone",
         "IRecordset::Index: LayerIDIDX is on Layers.LayerID, IDIDX on LayerGroups.ID.",
         {},
         Town,
         CheckSeekByIDAlone},
        {"Cursors",
         "SeekKnowsOnlyEquality",
         "IRecordset::Seek: any other comparison than \"=\" raises a RunTimeError.",
         {},
         Town,
         CheckOtherComparison},
    };
}

std::vector<HostCheck> CursorChecks()
{
    return {
        {"Cursors",
         "ATableHasNoRowBeforeSeek",
         "IRecordset: a table cursor has no row until Seek finds one; AtEOF is true.",
         {},
         Town,
         CheckNoRowAtFirst},
        {"Cursors",
         "LayersIsATableOfTheDatabaseToo",
         "ILayerDatabase::OpenRecordset: \"Layers\" opens a table cursor, as LayersTable does.",
         {},
         Town,
         CheckLayersByName},
        {"Cursors",
         "AQueryStartsOnItsFirstRowAndEnds",
         "IRecordset: a query cursor is on its first row when it is opened; MoveNext after the last row "
         "makes "
         "AtEOF true.",
         {},
         Town,
         CheckForwardOnly},
        {"Cursors",
         "ClosingTwiceDoesNothing",
         "IRecordset::Close: a second call does nothing.",
         {},
         Town,
         CheckClose},
        {"Cursors",
         "CursorsDoNotDisturbEachOther",
         "Cursors: several are open at the same time, on queries and on tables, each with a row of its own.",
         {},
         Town,
         CheckCursorsTogether},
        {"Cursors",
         "OnlyRunTimeErrorsAreRaised",
         "Errors: RunTimeError is the only type of exception, nullptr is never returned, and the database "
         "works after an error.",
         {},
         Town,
         CheckErrorTypes},
    };
}

} // namespace Orvane::HostTests
