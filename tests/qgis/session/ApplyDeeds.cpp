// SPDX-License-Identifier: MIT
#include "qgis/session/SessionWorld.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QtTest>
#include <qgsvectorlayer.h>

#include <algorithm>
#include <array>
#include <gtest/gtest.h>

namespace Orvane::Testing {

namespace {

using Paper::Layers;

struct Control {
    const char* column;
    const char* name;
};

constexpr std::array flags{
    Control{"Visible", "chkVisible"},       Control{"Selectable", "chkSelectable"},
    Control{"locked", "chkLocked"},         Control{"Hitable", "chkHitable"},
    Control{"Enquirable", "chkEnquirable"}, Control{"SnapRequired", "chkSnapRequired"}};

constexpr std::array colours{
    Control{"Color", "cmbColor0"}, Control{"FillForeColor", "cmbColor1"},
    Control{"FillBackColor", "cmbColor2"}, Control{"FillStyle", "cmbFillStyles"}};

// The user answers whether pending edits are to be applied.
void Leave(SessionWorld& world, const std::function<void()>& act)
{
    world.user.answersYes = world.dice.Chance(50);
    const bool applies = world.user.answersYes && world.isEdited;
    const Layers before = world.paper;
    world.mayFail = world.isEdited;
    if (applies)
        world.ApplyOnPaper();
    act();
    SessionWorld::Settle();
    if (applies) {
        world.Adopt(Paper::symbolColumns);
        world.NoteStep(before);
    }
    world.ForgetEdits();
}

void SelectNode(SessionWorld& world)
{
    const int rows = world.user.Rows(world.tab);
    if (rows == 0)
        return;
    const int row = world.dice.Below(rows);
    if (world.isEdited) // the same node keeps its edits
        return Leave(world, [&] { world.user.ClickTab(world.tab = 3 - world.tab); });
    world.user.ClickNode(world.tab, row);
}

void ShowOtherTab(SessionWorld& world)
{
    Leave(world, [&] { world.user.ClickTab(world.tab = 3 - world.tab); });
}

// What the layers of the current node have in common.
QVariant CommonValue(SessionWorld& world, const char* column)
{
    const std::vector<qint32> members = world.Members();
    const auto value = [&](qint32 id) { return world.paper.at(id).row.at(column); };
    const bool isCommon = std::all_of(
        members.begin(), members.end(), [&](qint32 id) { return value(id) == value(members.front()); });
    return isCommon && !members.empty() ? value(members.front()) : QVariant();
}

// What the control shows now is wanted; "various", and what the layers have anyway, is no edit.
void Note(SessionWorld& world, const char* column, std::optional<double> value)
{
    if (value && CommonValue(world, column) != QVariant(*value))
        world.edits[column] = *value;
    else
        world.edits.erase(column);
    world.isEdited = world.Form().HasPendingEdits();
    if (!world.isEdited)
        world.edits.clear();
}

void ClickFlag(SessionWorld& world)
{
    if (!world.user.CanEdit())
        return;
    const Control& flag = world.dice.OneOf(flags);
    world.user.Click(flag.name);
    const auto shown = world.user.FlagOf(flag.name);
    Note(world, flag.column, shown ? std::optional<double>(*shown) : std::nullopt);
}

void ClickMode(SessionWorld& world)
{
    if (!world.user.CanEdit())
        return;
    const int mode = world.dice.Below(3);
    world.user.Click(std::array{"Normal", "Backdrop", "Hidden"}[size_t(mode)]);
    Note(world, "OverrideMode", mode);
}

void StepThroughColours(SessionWorld& world)
{
    if (!world.user.CanEdit())
        return;
    const Control& list = world.dice.OneOf(colours);
    const int key = world.dice.OneOf(std::array{Qt::Key_Up, Qt::Key_Down, Qt::Key_Home});
    const auto shown = world.user.StepThrough(list.name, key);
    Note(world, list.column, shown ? std::optional<double>(*shown) : std::nullopt);
}

void StepThroughLines(SessionWorld& world)
{
    if (!world.user.CanEdit())
        return;
    const int key = world.dice.OneOf(std::array{Qt::Key_Up, Qt::Key_Down, Qt::Key_Home});
    const auto shown = world.user.StepThrough("cmbLineStyles", key);
    const bool isWidth = shown && std::abs(*shown) >= 20;
    Note(world, "OutlineStyle", shown ? std::optional<double>(isWidth ? 0 : *shown) : std::nullopt);
    Note(world, "LineThickness", shown ? std::optional<double>(isWidth ? *shown / 20 : 0) : std::nullopt);
}

void TickForSymbols(SessionWorld& world)
{
    if (!world.user.CanEdit())
        return;
    world.user.Click("chkUseForSymbols");
    world.isEdited = world.Form().HasPendingEdits();
}

// The fill is exactly the one that was chosen; for the other columns that symbols show there are tests of
// their own.
void CheckFills(SessionWorld& world, const Layers& before, const std::vector<qint32>& members)
{
    const Layers stored = Paper::ReadRows(world.session.Store());
    const auto fill = world.edits.find("FillForeColor");
    for (const qint32 id : members) {
        if (fill != world.edits.end() && before.at(id).row.at("FillForeColor").isValid())
            EXPECT_EQ(stored.at(id).row.at("FillForeColor").toDouble(), fill->second)
                << before.at(id).row.at("Name").toString().toStdString();
    }
}

void Apply(SessionWorld& world)
{
    if (!world.isEdited)
        return;
    const Layers before = world.paper;
    const std::vector<qint32> members = world.Members();
    world.mayFail = true; // a column may be refused
    world.ApplyOnPaper();
    world.user.Click("cmdApply");
    SessionWorld::Settle();
    CheckFills(world, before, members);
    world.Adopt(Paper::symbolColumns);
    world.NoteStep(before);
    world.ForgetEdits();
}

void Cancel(SessionWorld& world)
{
    if (!world.isEdited)
        return;
    world.user.Click("cmdCancel");
    world.ForgetEdits();
}

void GoBack(SessionWorld& world, std::vector<Paper::Step>& from, std::vector<Paper::Step>& to, bool undoes)
{
    ASSERT_EQ(undoes ? world.History().CanUndo() : world.History().CanRedo(), !from.empty());
    if (from.empty())
        return;
    undoes ? world.session.Undo() : world.session.Redo();
    SessionWorld::Settle();
    if (world.isEdited) {
        EXPECT_EQ(world.failed.count(), 1);
        world.mayFail = true;
        return;
    }
    Paper::Step step = from.back();
    from.pop_back();
    const auto& present = undoes ? step.after : step.before;
    const bool changesOwn = step.ownBefore != step.ownAfter;
    const bool isDone = Paper::IsPresent(present, world.paper)
        && (!changesOwn || world.ownModes == (undoes ? step.ownAfter : step.ownBefore));
    if (isDone && (!step.isOfSchemes || world.failed.isEmpty())) {
        Paper::Set(undoes ? step.before : step.after, world.paper);
        if (changesOwn)
            world.ownModes = world.ownModesBefore = undoes ? step.ownBefore : step.ownAfter;
        world.AdoptLocks();
        to.push_back(std::move(step));
    } else {
        EXPECT_EQ(world.failed.count(), 1);
    }
    world.mayFail = true;
}

void Undo(SessionWorld& world)
{
    GoBack(world, world.done, world.undone, true);
}

void Redo(SessionWorld& world)
{
    GoBack(world, world.undone, world.done, false);
}

void Rename(SessionWorld& world)
{
    if (world.isEdited)
        return;
    QgsMapLayer* layer = world.AnyLayer([](const QgsMapLayer& each) { return each.isValid(); });
    const Layers before = world.paper;
    const QString name = world.NewName();
    world.Form().SetLayerName(world.IDOf(*layer), name);
    world.PaperOf(*layer).row["Name"] = name;
    world.NoteStep(before);
}

void Delete(SessionWorld& world)
{
    if (world.isEdited || world.paper.size() < 25)
        return;
    world.Host().DeleteLayer(world.IDOf(*world.AnyRemovableLayer()));
    SessionWorld::Settle();
    world.session.Client().RefreshEditors();
    world.AdoptLayers();
}

void CreateScheme(SessionWorld& world)
{
    if (world.isEdited || world.schemes.size() > 4)
        return;
    const QString name = world.NewName();
    world.Host().CreateScheme(name);
    world.schemes[name] = world.paper;
    world.NoteStep(world.paper, true);
}

// Locked or unknown columns stay as they are.
void LoadScheme(SessionWorld& world)
{
    if (world.isEdited || world.schemes.empty())
        return;
    const QString name = std::next(world.schemes.begin(), world.dice.Below(int(world.schemes.size())))->first;
    if (!world.Host().GetSchemeNames().contains(name)) // its creation was undone
        return;
    const Layers before = world.paper;
    world.mayFail = true;
    const bool isOther = world.Host().GetCurrentScheme() != name;
    world.Host().LoadScheme(name);
    SessionWorld::Settle();
    world.session.Client().RefreshEditors();
    for (auto& [id, layer] : world.paper) {
        const auto saved = world.schemes.at(name).find(id);
        const auto* vectors = qobject_cast<QgsVectorLayer*>(world.LayerOf(id));
        for (const std::string& column : Paper::columns) {
            const bool isRefused = column == "locked" && vectors && vectors->isEditable();
            if (saved == world.schemes.at(name).end() || column == "Name" || column == "Code" || isRefused)
                continue;
            const QVariant& value = saved->second.row.at(column);
            if (layer.row.at(column).isValid() && value.isValid())
                layer.row[column] = value;
        }
    }
    world.Adopt(Paper::symbolColumns);
    world.NoteStep(before, isOther);
}

} // namespace

std::vector<Deed> DialogDeeds()
{
    return {
        {"select a node", 14, SelectNode},
        {"show the other tab", 4, ShowOtherTab},
        {"click a flag", 14, ClickFlag},
        {"click a quick mode", 6, ClickMode},
        {"step through colours", 8, StepThroughColours},
        {"step through line styles", 4, StepThroughLines},
        {"tick the flag for symbols", 2, TickForSymbols},
        {"apply", 12, Apply},
        {"cancel", 2, Cancel},
        {"undo", 6, Undo},
        {"redo", 3, Redo},
        {"rename a layer", 2, Rename},
        {"delete a layer", 1, Delete},
        {"create a scheme", 1, CreateScheme},
        {"load a scheme", 2, LoadScheme}};
}

} // namespace Orvane::Testing
