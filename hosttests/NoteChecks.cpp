// SPDX-License-Identifier: MIT
#include "hosttests/CheckLists.h"
#include "hosttests/CheckRun.h"
#include "hosttests/ComponentCalls.h"
#include "hosttests/SampleContents.h"

#include <OrvaneShellLib/IMapNotes.h>
#include <OrvaneShellLib/Transaction.h>

namespace Orvane::HostTests {

namespace {

const QString NoteKey = QStringLiteral("HostTests.Note");
const QString NoteText = QStringLiteral(u"normal=1..5,7;hidden='9' \"x\" 50% %1 \u9053\n;=\\");

// The host's notes; without them, the check is ended as not run.
IMapNotes* KeptNotes(CheckRun& run)
{
    auto* notes = dynamic_cast<IMapNotes*>(&run.Client());
    if (!notes)
        run.Skip(QStringLiteral("the host does not implement IMapNotes"));
    else if (!notes->KeepsNotes())
        run.Skip(QStringLiteral("the host keeps no notes"));
    return notes && notes->KeepsNotes() ? notes : nullptr;
}

// As the component does: layers and note in one transaction.
void HideWithNote(CheckRun& run, IMapNotes& notes, qint32 layerID, const QString& text)
{
    Transaction transaction(run.Database());
    const auto layers = ComponentCalls::OpenLayersByID(run.Client());
    ComponentCalls::SeekID(*layers, layerID);
    run.Client().BeginLayerEdit(*layers);
    layers->SetField("OverrideMode", qint16(text.isEmpty() ? 0 : 2));
    run.Client().LayerChanged(layerID);
    layers->Update();
    notes.SetNote(NoteKey, text);
    transaction.Commit();
}

void ExpectHidden(CheckRun& run, const QString& when, qint32 layerID, bool hidden)
{
    run.ExpectValue(
        QStringLiteral("OverrideMode ") + when,
        ComponentCalls::LoadLayer(run.Client(), layerID).at("OverrideMode"), hidden ? 2 : 0);
}

void CheckNotes(CheckRun& run)
{
    IMapNotes* notes = KeptNotes(run);
    if (!notes)
        return;
    const QString otherKey = QStringLiteral("HostTests.Other");
    run.ExpectText(QStringLiteral("a note that was never set"), notes->Note(NoteKey), QString());
    for (const QString& text : {QString(300000, QLatin1Char('7')), NoteText}) {
        notes->SetNote(NoteKey, text);
        notes->SetNote(otherKey, QStringLiteral("other"));
        run.Client().RedrawMap();
        run.Expect(notes->Note(NoteKey) == text, QStringLiteral("the note is not the text that was set"));
    }
    notes->SetNote(NoteKey, QString());
    run.Client().RedrawMap();
    run.ExpectText(QStringLiteral("the emptied note"), notes->Note(NoteKey), QString());
    run.ExpectText(QStringLiteral("another note"), notes->Note(otherKey), QStringLiteral("other"));
}

void CheckNoteInTransaction(CheckRun& run)
{
    IMapNotes* notes = KeptNotes(run);
    if (!notes)
        return;
    run.Database().BeginTrans();
    notes->SetNote(NoteKey, NoteText);
    run.ExpectText(QStringLiteral("the note inside the transaction"), notes->Note(NoteKey), NoteText);
    run.Database().Rollback();
    run.ExpectText(QStringLiteral("the note after the rollback"), notes->Note(NoteKey), QString());
    HideWithNote(run, *notes, TownLayer::Rivers, NoteText);
    run.Client().RedrawMap();
    run.ExpectText(QStringLiteral("the note after the commit"), notes->Note(NoteKey), NoteText);
}

// "Show Only These", then "Show All Again".
void CheckNoteWithLayers(CheckRun& run)
{
    IMapNotes* notes = KeptNotes(run);
    if (!notes)
        return;
    HideWithNote(run, *notes, TownLayer::Rivers, NoteText);
    run.Client().RedrawMap();
    ExpectHidden(run, QStringLiteral("of a layer that was hidden with a note"), TownLayer::Rivers, true);
    run.ExpectText(QStringLiteral("the note after RedrawMap"), notes->Note(NoteKey), NoteText);
    HideWithNote(run, *notes, TownLayer::Rivers, QString());
    run.Client().RedrawMap();
    ExpectHidden(run, QStringLiteral("of the layer that was shown again"), TownLayer::Rivers, false);
    run.ExpectText(QStringLiteral("the removed note"), notes->Note(NoteKey), QString());
}

void CheckNoteInSecondProgram(CheckRun& run)
{
    IMapNotes* notes = KeptNotes(run);
    if (!notes)
        return;
    HideWithNote(run, *notes, TownLayer::Rivers, NoteText);
    run.Client().RedrawMap();
    const auto other = run.Host().OpenAgain();
    auto* seen = other ? dynamic_cast<IMapNotes*>(&other->Client()) : nullptr;
    if (run.Expect(seen != nullptr, QStringLiteral("the host that OpenAgain returned has no IMapNotes")))
        run.ExpectText(QStringLiteral("the note for the other program"), seen->Note(NoteKey), NoteText);
}

void CheckNotesOfReadOnlyMap(CheckRun& run)
{
    const auto* notes = dynamic_cast<const IMapNotes*>(&run.Client());
    if (!notes)
        return run.Skip(QStringLiteral("the host does not implement IMapNotes"));
    if (run.Can(Ability::Writing))
        return run.Skip(QStringLiteral("the map can be changed"));
    run.Expect(!notes->KeepsNotes(), QStringLiteral("KeepsNotes is true for a map that cannot be changed"));
}

} // namespace

std::vector<HostCheck> NoteChecks()
{
    const std::vector<Ability> writing{Ability::Writing};
    return {
        {"Optional", "ANoteIsReadAsWritten",
         "IMapNotes::Note: the text that SetNote stored under that key, any text, or an empty one.", writing,
         Town, CheckNotes},
        {"Optional", "ANoteBelongsToItsTransaction",
         "IMapNotes::SetNote: a rollback undoes it together with the layers, a commit keeps it.", writing,
         Town, CheckNoteInTransaction},
        {"Optional", "ANoteStaysWithTheLayersThatChanged",
         "IMapNotes::SetNote: layers and note are stored in one transaction, and stay after RedrawMap.",
         writing, Town, CheckNoteWithLayers},
        {"Optional",
         "ANoteIsKeptWithTheMap",
         "IMapNotes::KeepsNotes: true only if a map that is opened again has its notes.",
         {Ability::Writing, Ability::SecondProgram},
         Town,
         CheckNoteInSecondProgram},
        {"Optional",
         "AMapThatCannotBeChangedKeepsNoNotes",
         "IMapNotes::KeepsNotes: false for a map that cannot be changed.",
         {},
         Town,
         CheckNotesOfReadOnlyMap},
    };
}

} // namespace Orvane::HostTests
