// SPDX-License-Identifier: MIT
// How the dialog is shown, hidden and unloaded, as a window or within a widget of the host.
#include "component/common/Component.h"
#include "component/common/EventGuard.h"
#include "component/common/FirstError.h"
#include "component/common/HostInterface.h"
#include "component/dialog/window/EditorParts.h"
#include "component/dialog/window/Enclosure.h"
#include "component/dialog/window/SelectionEditor.h"
#include "component/dialog/window/frmLayerStyles.h"

#include <OrvaneShellLib/IEditorWatch.h>
#include <OrvaneShellLib/IStyleEditorClient.h>
#include <OrvaneShellLib/IStyleFilter.h>

#include <QCloseEvent>
#include <QKeyEvent>
#include <QPointer>

namespace Orvane {

namespace {

// Keys that lists, boxes and fields use.
bool IsOfControls(const QKeyEvent& event)
{
    constexpr Qt::KeyboardModifiers others = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    if ((event.modifiers() & others) != Qt::NoModifier)
        return false;
    const int key = event.key();
    const bool isMove = key >= Qt::Key_Home && key <= Qt::Key_PageDown;
    const bool isEntry = key == Qt::Key_Delete || key == Qt::Key_Return || key == Qt::Key_Enter;
    return isMove || isEntry || (!event.text().isEmpty() && event.text().at(0).isPrint());
}

QString SettingKey(const QString& editorID)
{
    return QStringLiteral("DrawStyleEditor::") + editorID;
}

} // namespace

void frmLayerStyles::RestoreViewState()
{
    const ViewState state = ViewState::FromText(Client().ReadSetting(this, SettingKey(EditorID())));
    SelectTab(m_filter && m_filter->ShowsGroups() ? ListTab::Groups : state.tab);
    m_parts->trees.ShowSamples(state.samples);
    if (state.expanded)
        m_parts->layout.SetExpanded(*state.expanded);
    if (state.size)
        m_parts->geometry.Restore(*state.size);
}

QString frmLayerStyles::ViewStateText() const
{
    const bool expanded = m_initialised && m_parts->layout.Expanded();
    const ViewState state{m_parts->geometry.Current(), expanded, m_tab, m_parts->trees.ShowsSamples()};
    return state.ToText();
}

// Within another widget the form may be open and yet not visible, for example behind another tab.
bool frmLayerStyles::IsOpen() const
{
    return isVisible() || (m_shown && !isWindow());
}

void frmLayerStyles::ShowByHost()
{
    m_parts->geometry.Note();
    m_shown = true;
    const QPointer self(this);
    Client().ShowEditor(this);
    auto* watch = HostInterface<IEditorWatch>();
    if (watch && self && !m_unloaded)
        watch->EditorShown(this);
}

QSize frmLayerStyles::minimumSizeHint() const
{
    return isWindow() || !m_parts ? StyleEditorWindow::minimumSizeHint() : m_parts->layout.SmallestSize();
}

bool frmLayerStyles::event(QEvent* event)
{
    const bool isDone = StyleEditorWindow::event(event);
    // Or a host's shortcut, such as Home for its map, would take it.
    if (event->type() == QEvent::ShortcutOverride && !isWindow()
        && IsOfControls(*static_cast<QKeyEvent*>(event)))
        event->accept();
    if (event->type() == QEvent::ParentChange && m_parts) // other events may have ended this form
        GuardEvent(this, [this] {
            m_parts->layout.Arrange();
            m_parts->geometry.FollowParent();
        });
    return isDone;
}

void frmLayerStyles::resizeEvent(QResizeEvent* event)
{
    StyleEditorWindow::resizeEvent(event);
    GuardEvent(this, [this] {
        if (m_parts)
            m_parts->layout.Arrange();
    });
}

void frmLayerStyles::showEvent(QShowEvent* event)
{
    StyleEditorWindow::showEvent(event);
    GuardEvent(this, [this] {
        m_parts->geometry.KeepOnScreen();
        m_parts->choice.TellSoon(); // it may have changed behind another tab
    });
}

void frmLayerStyles::hideEvent(QHideEvent* event)
{
    StyleEditorWindow::hideEvent(event);
    GuardEvent(this, [this] { m_parts->geometry.Note(); }); // it may be on its way into another widget
}

void frmLayerStyles::keyPressEvent(QKeyEvent* event)
{
    const bool isForOthers
        = event->matches(QKeySequence::Cancel) && !isWindow() && !m_selection->IsModified();
    if (isForOthers)
        event->ignore();
    else
        StyleEditorWindow::keyPressEvent(event);
}

// The type that limits the shortcuts would keep the Tab key inside.
bool frmLayerStyles::focusNextPrevChild(bool next)
{
    if (isWindow())
        return StyleEditorWindow::focusNextPrevChild(next);
    const QPointer self(this);
    const Qt::WindowFlags flags = windowFlags();
    setWindowFlags(flags & ~Qt::WindowType_Mask);
    const bool moved = StyleEditorWindow::focusNextPrevChild(next);
    if (self && !isWindow())
        setWindowFlags(flags);
    return moved;
}

void frmLayerStyles::reject()
{
    if (m_selection->IsModified())
        GuardEvent(this, [this] { m_selection->Cancel(); });
    else if (isWindow())
        close();
}

void frmLayerStyles::closeEvent(QCloseEvent* event)
{
    event->ignore();
    const QPointer<frmLayerStyles> self(this);
    GuardEvent(this, [this] {
        if (ConfirmUnload())
            Unload();
    });
    event->setAccepted(!self || m_unloaded);
}

bool frmLayerStyles::MayClose()
{
    bool may = false;
    GuardEvent(this, [&] { may = ConfirmUnload(); });
    return may;
}

void frmLayerStyles::Hide()
{
    if (!ConfirmUnload())
        return;
    const QPointer self(this);
    m_closing = true;
    m_enclosure->Leave(); // the host may close what encloses the form
    const QString key = SettingKey(EditorID());
    const QString state = ViewStateText();
    FirstError errors;
    errors.Try([this] { Client().EditorClosed(this); });
    if (self)
        errors.Try([this] { Unload(); });
    else if (HasClient()) // the host has destroyed the form
        errors.Try([&] { Client().WriteSetting(nullptr, key, state); });
    errors.Rethrow();
}

bool frmLayerStyles::ConfirmUnload()
{
    if (m_enclosure->IsClosing())
        return !m_unloaded; // the user was asked
    const QPointer self(this);
    m_parts->trees.FinishNameEdit();
    return self && m_selection->ConfirmPendingChanges() && !m_unloaded;
}

// Once started, it always completes: if a host fails here, no window without an owner may be left.
void frmLayerStyles::Unload()
{
    if (m_unloaded)
        return;
    m_unloaded = true;
    m_enclosure->Leave();
    m_parts->trees.DropNameEdit();
    FirstError errors;
    const QPointer self(this);
    if (HasClient())
        TellUnload(errors);
    if (self) {
        hide();
        emit Unloaded(EditorID());
    }
    errors.Rethrow();
}

// The host may destroy what encloses the form, and the form with it.
void frmLayerStyles::TellUnload(FirstError& errors)
{
    const QString key = SettingKey(EditorID());
    const QString state = ViewStateText();
    const QPointer self(this);
    errors.Try([this] { Client().EditorClosed(this); });
    if (HasClient())
        errors.Try([&] { Client().WriteSetting(self, key, state); });
    if (auto* watch = self ? HostInterface<IEditorWatch>() : nullptr)
        errors.Try([&] { watch->EditorEnded(this); });
}

} // namespace Orvane
