// SPDX-License-Identifier: MIT
#include "hosttests/DialogSession.h"

#include <OrvaneShellLib/IStyleEditorLibrary.h>

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QEvent>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QTreeView>

namespace Orvane::HostTests {

namespace {

const auto EditorID = QStringLiteral("HostTests");

QString PluginName(const QString& component)
{
    return component.isEmpty() ? QString::fromLatin1(StyleEditorPlugin::DefaultName) : component;
}

void Click(QWidget& widget, const QPointF& place)
{
    const QPointF global = widget.mapToGlobal(place.toPoint());
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const Qt::MouseButtons buttons = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
        QMouseEvent event(type, place, global, Qt::LeftButton, buttons, Qt::NoModifier);
        QApplication::sendEvent(&widget, &event);
    }
}

void AddNames(const QAbstractItemModel& model, const QModelIndex& parent, QStringList& names)
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        names << index.data().toString();
        AddNames(model, index, names);
    }
}

} // namespace

DialogSession::DialogSession(
    CheckRun& run, IStyleEditorClient& client, const QString& component, bool showsGroups)
    : m_run(run), m_showsGroups(showsGroups), m_plugin(PluginName(component))
{
    qApp->installEventFilter(this);
    QWidget anyForm;
    client.WriteSetting(
        &anyForm, QStringLiteral("DrawStyleEditor::") + EditorID,
        showsGroups ? QStringLiteral("9000:7000:GROUPS:EXPANDED")
                    : QStringLiteral("9000:7000:LAYERS:EXPANDED"));
    m_plugin.Library().Initialise(&client);
    m_editor = m_plugin.Library().NewStyleEditor(EditorID);
    m_form = dynamic_cast<IStyleEditorForm*>(m_editor);
    m_editor->Visible(true);
    QApplication::processEvents();
}

// The host may have loaded the component itself, which then still uses what the session leaves behind.
DialogSession::~DialogSession()
{
    if (m_plugin.Library().GetStyleEditor(EditorID) == m_editor)
        m_form->UnloadWithoutApply();
    m_plugin.Library().Initialise(&m_run.Client());
}

QWidget& DialogSession::Window() const
{
    auto* window = dynamic_cast<QWidget*>(m_editor);
    if (!window)
        throw RunTimeError(ErrorNumber::PluginFailure, QStringLiteral("the editor is no QWidget"));
    return *window;
}

template <typename Child> Child* DialogSession::Find(QObject* parent, const char* name)
{
    auto* found = parent ? parent->findChild<Child*>(QLatin1String(name)) : nullptr;
    m_run.Expect(found, QStringLiteral("the dialog has no ") + QLatin1String(name));
    return found;
}

QTreeView& DialogSession::List() const
{
    const QLatin1String name(m_showsGroups ? "tvLayers1" : "tvLayers2");
    auto* list = Window().findChild<QTreeView*>(name);
    if (!list)
        throw RunTimeError(ErrorNumber::PluginFailure, QStringLiteral("the dialog has no list"));
    return *list;
}

QStringList DialogSession::Listed() const
{
    QStringList names;
    AddNames(*List().model(), QModelIndex(), names);
    return names;
}

void DialogSession::Choose(const QString& name)
{
    QTreeView& list = List();
    const QAbstractItemModel& model = *list.model();
    const QModelIndexList found
        = model.match(model.index(0, 0), Qt::DisplayRole, name, 1, Qt::MatchExactly | Qt::MatchRecursive);
    if (!m_run.Expect(!found.isEmpty(), QStringLiteral("the dialog does not list ") + name))
        return;
    list.scrollTo(found.first());
    Click(*list.viewport(), list.visualRect(found.first()).center());
    QApplication::processEvents();
}

void DialogSession::Tick(const char* box)
{
    if (auto* outer = Find<QWidget>(&Window(), box)) {
        if (auto* inner = outer->findChild<QCheckBox*>())
            Click(*inner, QPointF(8, inner->height() / 2.0));
    }
    QApplication::processEvents();
}

void DialogSession::Apply()
{
    auto* apply = Find<QPushButton>(&Window(), "cmdApply");
    if (apply && m_run.Expect(apply->isEnabled(), QStringLiteral("nothing can be applied")))
        apply->click();
    QApplication::processEvents();
}

bool DialogSession::eventFilter(QObject* watched, QEvent* event)
{
    auto* dialog = event->type() == QEvent::Show ? qobject_cast<QDialog*>(watched) : nullptr;
    if (!dialog || !dialog->isModal())
        return QObject::eventFilter(watched, event);
    const auto* box = qobject_cast<QMessageBox*>(dialog);
    m_run.Expect(
        false, QStringLiteral("a window asked the user: %1").arg(box ? box->text() : dialog->windowTitle()));
    QTimer::singleShot(0, dialog, [dialog] { dialog->reject(); });
    return QObject::eventFilter(watched, event);
}

} // namespace Orvane::HostTests
