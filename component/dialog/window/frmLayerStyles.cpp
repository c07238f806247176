// SPDX-License-Identifier: MIT
#include "component/dialog/window/frmLayerStyles.h"

#include "component/common/Component.h"
#include "component/common/EditPermission.h"
#include "component/common/EventGuard.h"
#include "component/common/FirstError.h"
#include "component/common/Messages.h"
#include "component/dialog/panel/RendererStyleEditor.h"
#include "component/dialog/window/EditorParts.h"
#include "component/dialog/window/Enclosure.h"
#include "component/dialog/window/SelectionEditor.h"
#include "ui_frmLayerStyles.h"

#include <OrvaneShellLib/IStyleEditorClient.h>

#include <QPointer>
#include <QTimer>
#include <QTreeView>

namespace Orvane {

namespace {

QWidget& ListOn(QWidget& page)
{
    auto* list = page.findChild<QTreeView*>();
    return list ? *list : page;
}

} // namespace

frmLayerStyles::frmLayerStyles(QWidget* parent)
    : StyleEditorWindow(parent), m_ui(std::make_unique<Ui::frmLayerStyles>()), m_tab(ListTab::Groups)
{
    m_ui->setupUi(this);
    for (const char* tab : {QT_TR_NOOP("Groups"), QT_TR_NOOP("Layers"), QT_TR_NOOP("Schemes")})
        m_ui->tsLists->addTab(QString::fromLatin1(tab));
    m_parts = std::make_unique<EditorParts>(*this, *m_ui);
    m_selection = std::make_unique<SelectionEditor>(
        *this,
        SelectionEditor::Parts{
            m_parts->trees, m_parts->panel, m_parts->quickModes, m_parts->commands,
            [this] { return m_parts->RendererStyles().SelectedStyle(); }});
    m_enclosure = std::make_unique<Enclosure>(
        *this, [this] { return MayClose(); }, [this] { GuardEvent(this, [this] { Unload(); }); });
    m_parts->layout.TakeDesignedSize();
    Wire();
    WirePasting();
    WireCommands();
}

frmLayerStyles::~frmLayerStyles() = default;

void frmLayerStyles::Wire()
{
    connect(m_ui->tsLists, &QTabBar::currentChanged, this, &frmLayerStyles::OnTabChanged);
    connect(m_ui->tsLists, &QTabBar::tabBarClicked, this, &frmLayerStyles::OnTabClicked);
    connect(m_ui->cmdApply, &QAbstractButton::clicked, this, [this] {
        GuardRepeatable(*this, [this] { m_selection->ApplyOrRead(); });
    });
    connect(m_ui->cmdCancel, &QAbstractButton::clicked, this, [this] {
        GuardEvent(this, [this] { m_selection->Cancel(); });
    });
    connect(m_ui->cmdResize, &QAbstractButton::clicked, this, [this] {
        GuardEvent(this, [this] { m_parts->layout.SetExpanded(!m_parts->layout.Expanded()); });
    });
    m_parts->trees.SetPendingChangesQuestion(
        [this] { m_selection->ConfirmPendingChanges(); }, [this] { return m_selection->IsModified(); });
    connect(m_selection.get(), &SelectionEditor::ModifiedChanged, this, &frmLayerStyles::EnableButtons);
    connect(m_selection.get(), &SelectionEditor::Shown, this, &frmLayerStyles::ShowCover);
    // Not guarded: the code that chose the node is guarded, and in a call from the host the host gets the
    // error.
    connect(&m_parts->trees, &LayerTrees::CurrentNodeChanged, m_selection.get(), &SelectionEditor::Load);
    connect(m_selection.get(), &SelectionEditor::Applied, &m_parts->showing, &LayerShowing::FollowShown);
    connect(&m_parts->trees, &LayerTrees::CurrentNodeClicked, m_selection.get(), &SelectionEditor::Follow);
    connect(&m_parts->trees, &LayerTrees::ChosenNodesGone, m_selection.get(), &SelectionEditor::Follow);
    m_parts->showing.SetPendingEdits([this] { return m_selection->IsModified(); });
    connect(&m_parts->showing, &LayerShowing::ModesChanged, m_selection.get(), &SelectionEditor::FollowModes);
}

// Not guarded, for the same reason.
void frmLayerStyles::WirePasting()
{
    const auto shown = [this]() -> std::optional<SettingsPasting::Shown> {
        const auto settings = m_selection->Settings();
        if (!settings)
            return std::nullopt;
        return SettingsPasting::Shown{{settings->style, settings->quickMode}, settings->name};
    };
    m_parts->pasting.SetDialog(
        {[this] { return m_selection->ConfirmPendingChanges() && !m_unloaded; }, shown,
         [this] { return LoadRendererStyles(); }});
    connect(&m_parts->pasting, &SettingsPasting::Pasted, this, [this] {
        const QPointer self(this); // loading asks the host
        FirstError errors;
        errors.Try([this] { m_selection->Load(); });
        if (self)
            errors.Try([this] { m_parts->showing.ReadShown(); });
        errors.Rethrow();
    });
}

// Only the first is guarded here: the commands guard themselves.
void frmLayerStyles::WireCommands()
{
    connect(&m_parts->trees, &LayerTrees::DeleteRequested, this, [this] {
        if (m_tab == ListTab::Layers) // where the button is
            GuardEvent(this, [this] { m_parts->commands.DeleteLayer(); });
    });
    connect(&m_parts->commands, &LayerCommands::LayerCreated, this, [this](qint32 layerID) {
        m_parts->trees.MarkStale(LayerTrees::List::Groups);
        AddNewLayer(layerID);
    });
    connect(&m_parts->commands, &LayerCommands::DeleteAsked, this, &frmLayerStyles::OnDeleteAsked);
    connect(&m_parts->schemes, &SchemePanel::SchemeLoaded, this, &frmLayerStyles::OnSchemeLoaded);
}

// ---- initialisation

void frmLayerStyles::EnsureInitialised()
{
    if (!m_initialised)
        Initialise();
}

void frmLayerStyles::Initialise()
{
    m_parts->layout.SetExpanded(true);
    m_styleCommandPrefix = Client().StyleCommandPrefix();
    const bool hasQuickModes = Client().QuickModesAllowed();
    m_parts->quickModes.SetAllowed(hasQuickModes);
    m_parts->showing.SetAllowed(hasQuickModes);
    m_parts->trees.MarkStale(LayerTrees::List::Groups);
    m_parts->trees.MarkStale(LayerTrees::List::Layers);
    m_parts->JoinPropertyEditors(m_styleCommandPrefix);
    m_parts->panel.Fill();
    m_parts->schemes.Fill();
    m_parts->RendererStyles().FillStyles(LoadRendererStyles());
    m_parts->panel.Prepare();
    TranslateForm(*this);
    m_parts->layout.FitTexts();
    m_parts->layout.TakeDesignedSize();
    // The list itself is read only when it is about to be shown.
    m_parts->trees.ShowList(m_tab);
    m_parts->layout.ShowTab(m_tab);
    m_selection->ShowNothing();
    m_initialised = true;
}

void frmLayerStyles::Retranslate()
{
    if (!m_initialised)
        return;
    ReloadMessages();
    TranslateForm(*this);
    m_parts->panel.Retranslate();
    m_parts->find.Retranslate();
    m_parts->showing.Retranslate();
    m_parts->layout.FitTexts();
    UpdateCaption();
}

void frmLayerStyles::UpdateCaption()
{
    const QString theme = Client().ThemeName(this);
    setWindowTitle(
        theme.isEmpty() ? TranslateMsg("Layer Control") : TranslateMsg("Theme Control: ^1", theme));
}

void frmLayerStyles::changeEvent(QEvent* event)
{
    StyleEditorWindow::changeEvent(event);
    GuardEvent(this, [&] {
        if (event->type() == QEvent::LanguageChange || event->type() == QEvent::LocaleChange)
            Retranslate();
        else if (
            m_initialised && (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange))
            QTimer::singleShot(0, this, &frmLayerStyles::FitTexts); // the controls are notified after it
        else if (m_parts && event->type() == QEvent::PaletteChange)
            m_parts->quickModes.RefreshImages();
    });
}

void frmLayerStyles::FitTexts()
{
    GuardEvent(this, [this] { m_parts->layout.FitTexts(); });
}

// ---- tabs

void frmLayerStyles::OnTabChanged(int index)
{
    const ListTab tab = ListTab(index + 1);
    if (tab != m_tab)
        DoFromTabs([this, tab] { SelectTab(tab); });
}

// A click on the shown tab: a list that could not be read, or is stale, is read again.
void frmLayerStyles::OnTabClicked(int index)
{
    if (ListTab(index + 1) == m_tab && m_tab != ListTab::Schemes)
        DoFromTabs([this] { LoadList(); });
}

// Do not ask a question during an event of the tabs: they may be destroyed before the answer.
void frmLayerStyles::DoFromTabs(const std::function<void()>& act)
{
    const auto connection = m_selection->IsModified() ? Qt::QueuedConnection : Qt::DirectConnection;
    QMetaObject::invokeMethod(
        this, [this, act] { GuardEvent(this, act); }, connection);
}

void frmLayerStyles::SelectTab(ListTab tab)
{
    const QPointer self(this);
    FirstError errors;
    errors.Try([this, tab] { ShowTab(tab); });
    if (self)
        m_ui->tsLists->setCurrentIndex(int(m_tab) - 1);
    errors.Rethrow();
}

// The edits belong to the node of the previous tab.
void frmLayerStyles::ShowTab(ListTab tab)
{
    const QPointer self(this);
    const bool leavesNode = tab == ListTab::Schemes || tab != m_parts->trees.ShownList();
    if (tab == ListTab::Schemes)
        m_selection->ConfirmPendingChanges();
    else
        m_parts->trees.ShowList(tab);
    if (!self || m_unloaded)
        return;
    m_tab = tab;
    m_selection->SetTab(tab);
    m_parts->layout.ShowTab(tab);
    m_parts->choice.TellSoon();
    if (leavesNode)
        m_selection->SetModified(false); // or reading the list would ask about another tab's edits
    FirstError errors;
    errors.Try([this] { LoadList(); });
    if (self && !m_unloaded && tab == ListTab::Schemes)
        m_selection->CoverUp();
    else if (self && !m_unloaded)
        errors.Try([this] { m_selection->Load(); });
    errors.Rethrow();
}

// ---- the selection

void frmLayerStyles::EnableButtons(bool modified)
{
    const bool losesFocus = !modified && (m_ui->cmdApply->hasFocus() || m_ui->cmdCancel->hasFocus());
    m_ui->cmdApply->setEnabled(modified);
    m_ui->cmdCancel->setEnabled(modified);
    if (losesFocus)
        ListOn(*m_ui->stkLists->currentWidget()).setFocus();
}

void frmLayerStyles::ShowCover(bool isNode)
{
    using Cover = EditorLayout::Cover;
    const Cover cover = isNode ? Cover::None : Cover::NothingSelected;
    m_parts->layout.ShowCover(m_tab == ListTab::Schemes ? Cover::Schemes : cover);
    ShowPermission();
}

void frmLayerStyles::ShowPermission()
{
    const QString whyNot = WhyNotEdited();
    m_parts->layout.ShowWhyNotEdited(whyNot);
    if (!whyNot.isEmpty())
        m_parts->quickModes.SetEnabled(false);
}

void frmLayerStyles::LoadList()
{
    if (m_tab == ListTab::Schemes)
        m_parts->schemes.Fill();
    else
        LoadNodes();
}

void frmLayerStyles::LoadNodes()
{
    const QPointer self(this); // as in ShowTab
    m_parts->trees.EnsureLoaded(m_tab);
    if (self)
        m_parts->showing.ReadShown();
}

// The edits stay as long as there is a layer for them.
void frmLayerStyles::OnDeleteAsked()
{
    if (m_unloaded)
        return;
    m_parts->trees.MarkStale(LayerTrees::List::Groups);
    m_parts->trees.MarkStale(LayerTrees::List::Layers);
    FirstError errors;
    errors.Try([this] {
        if (m_selection->IsModified() && !m_selection->HasExistingLayer())
            m_selection->SetModified(false);
    });
    ReadAgain(errors);
    errors.Rethrow();
}

void frmLayerStyles::ReadAgain(FirstError& errors)
{
    const QPointer self(this); // the list may ask about edits; the host may close the dialog
    errors.Try([this] { LoadList(); });
    if (self && !m_unloaded && m_tab != ListTab::Schemes)
        errors.Try([this] { m_selection->Follow(); });
}

void frmLayerStyles::OnSchemeLoaded()
{
    m_parts->trees.MarkStale(LayerTrees::List::Groups);
    m_parts->trees.MarkStale(LayerTrees::List::Layers);
    UpdateCaption();
}

} // namespace Orvane
