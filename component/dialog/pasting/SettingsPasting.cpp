// SPDX-License-Identifier: MIT
#include "component/dialog/pasting/SettingsPasting.h"

#include "component/common/Component.h"
#include "component/common/EventGuard.h"
#include "component/common/FirstError.h"
#include "component/common/MessageBoxes.h"
#include "component/common/Messages.h"
#include "component/dialog/pasting/PasteTicks.h"
#include "component/dialog/pasting/SettingTexts.h"
#include "component/dialog/pasting/SettingsClipboard.h"
#include "component/dialog/pasting/frmPasteSettings.h"
#include "component/dialog/showing/ChosenLayers.h"
#include "component/dialog/showing/LayerShowing.h"
#include "component/dialog/trees/ColumnErrorTexts.h"
#include "component/dialog/trees/LayerTrees.h"
#include "component/dialog/trees/NodeMenu.h"
#include "component/model/LayerCursors.h"
#include "component/model/LayerStyleApplying.h"
#include "messages/NameInText.h"
#include "ovctrls/BusyPointer.h"

#include <OrvaneShellLib/IStyleEditorClient.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QKeyEvent>
#include <QMenu>
#include <QPointer>
#include <QScopeGuard>
#include <QTreeView>

#include <algorithm>
#include <functional>
#include <utility>

namespace Orvane {

namespace {

using PasteRows = std::vector<frmPasteSettings::Row>;

StyleEdits EditsOf(const PanelSettings& settings)
{
    StyleEdits edits;
    edits.style = settings.style;
    edits.quickMode = settings.quickMode;
    edits.selectedStyle = [number = settings.style.lsGet(Slot::RendererStyle)] { return number; };
    return edits;
}

std::optional<qint32> ColourIn(const PanelSettings& settings, Setting setting)
{
    const bool isColour
        = setting == Setting::LineColour || setting == Setting::FillColour || setting == Setting::Background;
    return isColour ? Int32In(settings.style.lsGet(EntryOf(setting).slotNumbers[0])) : std::nullopt;
}

QString WhyNotHere(Setting setting)
{
    const bool isPossible = setting != Setting::Mode || Client().QuickModesAllowed();
    return isPossible ? QString() : TranslateMsg("This map has no display modes.");
}

// Why a setting that was copied is not known here, with its value; nothing for one that was not copied.
std::optional<frmPasteSettings::Row>
UnknownRow(const PropertyPanel& panel, const CopiedSettings& copied, Setting setting)
{
    if (setting == Setting::RendererStyle && copied.rendererStyle) {
        return frmPasteSettings::Row{
            setting,
            SettingName(panel, setting),
            NameInText(copied.rendererStyle->name),
            {},
            TranslateMsg("This map has no style of that name.")};
    }
    if (setting == Setting::VisibleScales && copied.scales) {
        return frmPasteSettings::Row{
            setting,
            SettingName(panel, setting),
            CopiedScalesText(*copied.scales),
            {},
            TranslateMsg("With the scales of this map, this range is empty.")};
    }
    return std::nullopt;
}

// Settings that were copied but are not possible here are shown, too, so that nobody looks for them.
PasteRows RowsFor(const PropertyPanel& panel, const PanelSettings& settings, const CopiedSettings& copied)
{
    PasteRows rows;
    rows.reserve(AllSettings.size());
    for (const SettingEntry& entry : AllSettings) {
        const Setting setting = entry.setting;
        if (settings.Has(setting))
            rows.push_back(
                {setting, SettingName(panel, setting), SettingText(panel, settings, setting),
                 ColourIn(settings, setting), WhyNotHere(setting)});
        else if (auto row = UnknownRow(panel, copied, setting))
            rows.push_back(std::move(*row));
    }
    return rows;
}

SettingSet SettingsIn(const PasteRows& rows)
{
    SettingSet settings;
    for (const frmPasteSettings::Row& row : rows) {
        if (row.whyNot.isEmpty())
            settings.insert(row.setting);
    }
    return settings;
}

bool IsKeyEvent(const QEvent& event)
{
    return event.type() == QEvent::ShortcutOverride || event.type() == QEvent::KeyPress;
}

} // namespace

SettingsPasting::SettingsPasting(
    LayerTrees& trees, LayerShowing& showing, const PropertyPanel& panel,
    const std::vector<QTreeView*>& views, QObject* parent)
    : QObject(parent), m_trees(trees), m_panel(panel), m_views(views)
{
    for (QTreeView* view : m_views)
        view->installEventFilter(this);
    // Not guarded: the menu's opening is.
    connect(&showing, &LayerShowing::ModesAdded, this, [this](QMenu* menu) { FillMenu(*menu); });
}

QTreeView* SettingsPasting::View() const
{
    const auto shown = std::find_if(
        m_views.begin(), m_views.end(), [](const QTreeView* view) { return view->isVisible(); });
    return shown == m_views.end() ? m_views.front() : *shown;
}

void SettingsPasting::FillMenu(QMenu& menu)
{
    menu.addSeparator();
    QAction* copy
        = AddNodeEntry(menu, {TranslateMsg("Copy Settings"), WhyNotCopy(), [this] { Copy(); }}, this, View());
    copy->setShortcut(QKeySequence::Copy);
    QAction* paste = AddNodeEntry(
        menu, {TranslateMsg("Paste Settings..."), WhyNotPaste(), [this] { Paste(); }}, this, View());
    paste->setShortcut(QKeySequence::Paste);
}

// Not shortcuts: beside the same ones in a host's menu they would be ambiguous. While a name is edited, the
// keys go to its field.
bool SettingsPasting::eventFilter(QObject* watched, QEvent* event)
{
    const auto* key = IsKeyEvent(*event) ? static_cast<QKeyEvent*>(event) : nullptr;
    const bool isCopy = key && key->matches(QKeySequence::Copy);
    if (!isCopy && !(key && key->matches(QKeySequence::Paste)))
        return QObject::eventFilter(watched, event);
    event->accept();
    if (event->type() != QEvent::KeyPress)
        return true;
    GuardEvent(View(), [this, isCopy] {
        isCopy ? ActAfterEvent(WhyNotCopy(), &SettingsPasting::Copy)
               : ActAfterEvent(WhyNotPaste(), &SettingsPasting::Paste);
    });
    return true;
}

void SettingsPasting::ActAfterEvent(const QString& whyNot, void (SettingsPasting::*act)())
{
    GuardAfterEvent(this, View(), [this, whyNot, act] {
        if (whyNot.isEmpty())
            (this->*act)();
        else
            ShowMessageBox(View(), whyNot, BoxStyle::OkInformation);
    });
}

QString SettingsPasting::WhyNotCopy() const
{
    if (m_trees.ChosenNodes().IsEmpty())
        return TranslateMsg("Select a layer or a group first.");
    const std::optional<Shown> shown = m_dialog.shown();
    const bool hasAny = shown && std::any_of(AllSettings.begin(), AllSettings.end(), [&](const auto& entry) {
                            return shown->settings.Has(entry.setting);
                        });
    if (hasAny)
        return {};
    const bool hasLayers = !ReadLayerIDs(Client(), m_trees.ChosenNodes()).empty();
    return hasLayers ? TranslateMsg("These layers have no setting in common.") : NoLayersText();
}

QString SettingsPasting::WhyNotPaste() const
{
    if (m_trees.ChosenNodes().IsEmpty())
        return TranslateMsg("Select a layer or a group first.");
    if (!SettingsClipboard::HasSettings())
        return TranslateMsg("Copy the settings of a layer or a group first.");
    const std::optional<CopiedSettings> copied = SettingsClipboard::Read();
    return copied && !copied->IsEmpty() ? QString() : TranslateMsg("The copied settings cannot be read.");
}

void SettingsPasting::Copy()
{
    const QPointer self(this);
    const std::function<bool()> confirm = m_dialog.confirmEdits; // the host may end the dialog meanwhile
    if (!confirm() || !self)
        return;
    std::optional<Shown> shown = m_dialog.shown();
    if (!shown)
        return;
    if (!Client().QuickModesAllowed())
        shown->settings.quickMode = QuickMode::Various;
    const std::vector<RendererStyle> styles = m_dialog.rendererStyles();
    const CopiedSettings copied = ToCopy(shown->settings, styles);
    const QString text = SettingsAsText(m_panel, FromCopy(copied, styles), shown->name);
    SettingsClipboard::Put(copied, text);
}

void SettingsPasting::Paste()
{
    const QPointer self(this);
    const std::function<bool()> confirm = m_dialog.confirmEdits; // the host may end the dialog meanwhile
    if (!confirm() || !self)
        return;
    const std::optional<CopiedSettings> copied = SettingsClipboard::Read();
    if (!copied)
        return;
    const std::vector<qint32> layerIDs = ReadLayerIDs(Client(), m_trees.ChosenNodes());
    if (layerIDs.empty()) {
        ShowMessageBox(View(), NoLayersText(), BoxStyle::OkExclamation);
        return;
    }
    const PanelSettings settings = FromCopy(*copied, m_dialog.rendererStyles());
    const std::optional<SettingSet> chosen = Ask(layerIDs.size(), RowsFor(m_panel, settings, *copied));
    if (self && chosen)
        Store(layerIDs, settings.Only(*chosen));
}

std::optional<SettingSet> SettingsPasting::Ask(size_t layers, const std::vector<frmPasteSettings::Row>& rows)
{
    const QPointer<frmPasteSettings> window = new frmPasteSettings(View()); // ends with the view
    const auto ending = qScopeGuard([&window] {
        if (window)
            window->deleteLater();
    });
    const SettingSet offered = SettingsIn(rows);
    window->Show(TargetText(layers), rows, PasteTicks::TickedOf(offered));
    const bool isConfirmed = window->Ask();
    if (!window)
        return std::nullopt;
    SettingSet ticked = window->Ticked();
    if (!isConfirmed)
        return std::nullopt;
    PasteTicks::Remember(offered, ticked);
    return ticked;
}

QString SettingsPasting::TargetText(size_t layers) const
{
    const bool isMany = m_trees.ChosenNodes().IsMany();
    return isMany ? TranslateMsg("Paste these settings into ^1:", NameOfLayers(qsizetype(layers)))
                  : TranslateMsg("Paste these settings into '^1':", NameInQuestion(m_trees.CurrentText()));
}

QString SettingsPasting::NoLayersText() const
{
    return m_trees.ChosenNodes().IsMany() ? TranslateMsg("These groups have no layers.")
                                          : TranslateMsg("This group has no layers.");
}

void SettingsPasting::Store(const std::vector<qint32>& layerIDs, const PanelSettings& settings)
{
    const BusyPointer busy;
    const ApplyResult result
        = WithColumnTexts([&] { return ApplyLayersStyle(Client(), layerIDs, EditsOf(settings)); });
    if (result.layers > 0)
        Tell(layerIDs, settings.Has(Setting::Mode));
    else
        ShowMessageBox(
            View(), TranslateMsg("These layers no longer exist. Nothing was pasted."),
            BoxStyle::OkExclamation);
}

// The host may correct the modes while it redraws the map, and end the dialog.
void SettingsPasting::Tell(const std::vector<qint32>& layerIDs, bool areModesNew)
{
    const QPointer self(this);
    FirstError errors;
    errors.Try([] { Client().RedrawMap(); });
    if (self)
        errors.Try([&] { m_trees.ExpireSamples(); });
    if (self && areModesNew)
        errors.Try([&] { m_trees.SetLayerImages(ReadQuickModesWith(Client(), layerIDs)); });
    if (self)
        errors.Try([&] { emit Pasted(); });
    errors.Rethrow();
}

} // namespace Orvane
