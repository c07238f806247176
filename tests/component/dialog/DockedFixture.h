// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/EditorFixture.h"

#include <OrvaneShellLib/ForwardingClient.h>

#include <QAbstractButton>
#include <QCloseEvent>
#include <QDockWidget>
#include <QLineEdit>
#include <QMainWindow>
#include <QtTest>

namespace Orvane::Testing {

/// A main window that may refuse to be closed.
class RefusingWindow : public QMainWindow
{
public:
    bool refuses = false;

protected:
    void closeEvent(QCloseEvent* event) override { event->setAccepted(!refuses); }
};

/// A host whose user cancels the question about conflicts, and which watches its editors.
class WatchingClient : public ForwardingClient
{
public:
    using ForwardingClient::ForwardingClient;

    QStringList seen;

private:
    ConflictChoice IConflictQuestion_AskAboutConflicts(
        QWidget*, const QString&, const std::vector<ConflictingEdit>&) override
    {
        return ConflictChoice::Cancel;
    }
    void IEditorWatch_EditorShown(QWidget*) override { seen << QStringLiteral("shown"); }
    void IEditorWatch_EditorEnded(QWidget*) override { seen << QStringLiteral("ended"); }
};

/// An editor over the town that the host shows in a dock of its main window.
class Docked : public EditorFixture
{
protected:
    Docked()
    {
        AddTown();
        UseClient(client);
        window.setCentralWidget(new QLineEdit);
        window.addDockWidget(Qt::RightDockWidgetArea, dock);
        window.resize(900, 700);
        window.show();
        host.OnShowEditor = [this](QWidget* form) { Put(*dock, form); };
    }

    template <typename Container> static void Put(Container& container, QWidget* form)
    {
        if (container.widget() != form)
            container.setWidget(form);
        container.show();
        form->show();
    }

    /// Opens the editor and edits Roads, which is visible.
    void OpenWithEdits()
    {
        Open();
        ClickLayer("Roads");
        Click("chkVisible");
    }

    /// Somebody else changes what the user has edited, so that applying asks.
    void CauseConflict() { host.SetLayerColumn(1, "Visible", Value::Null()); }

    void PressCloseButtonOfDock()
    {
        auto* button = dock->findChild<QAbstractButton*>("qt_dockwidget_closebutton");
        ASSERT_TRUE(button);
        QTest::mouseClick(button, Qt::LeftButton);
    }

    WatchingClient client{host};
    RefusingWindow window;
    QPointer<QDockWidget> dock = new QDockWidget(&window);
};

} // namespace Orvane::Testing
