// SPDX-License-Identifier: MIT
#include "component/dialog/showing/ModeStore.h"

#include "component/common/Component.h"
#include "component/common/HostInterface.h"
#include "component/model/LayerStyleApplying.h"

#include <OrvaneShellLib/IMapNotes.h>
#include <OrvaneShellLib/IStyleEditorClient.h>
#include <OrvaneShellLib/Transaction.h>

namespace Orvane {

namespace {

const QString ShownOnlyKey = QStringLiteral("LayerControl.ShownOnly");

IMapNotes* Notes()
{
    auto* notes = HostInterface<IMapNotes>();
    return notes && notes->KeepsNotes() ? notes : nullptr;
}

} // namespace

bool ModeStore::KeepsShownOnly()
{
    return Notes();
}

ShownOnly ModeStore::ReadShownOnly()
{
    IMapNotes* notes = Notes();
    return notes ? ShownOnly::FromText(notes->Note(ShownOnlyKey)) : ShownOnly();
}

std::vector<LayerMode> ModeStore::Store(const std::function<Change()>& plan)
{
    Transaction transaction(Client().GetDatabase());
    Change change = plan();
    if (change.modes.empty())
        return {};
    ApplyQuickModes(Client(), change.modes);
    IMapNotes* notes = change.kept ? Notes() : nullptr;
    if (notes)
        notes->SetNote(ShownOnlyKey, change.kept->Text());
    transaction.Commit();
    return std::move(change.modes);
}

} // namespace Orvane
