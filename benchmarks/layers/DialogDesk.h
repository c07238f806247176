// SPDX-License-Identifier: MIT
#pragma once

#include "component/entry/StyleEditorLib.h"
#include "hostkit/StandardClient.h"
#include "hostkit/StandardShellServices.h"
#include "store/sqlite/SqliteLayerDatabase.h"

#include <OrvaneShellLib/ForwardingClient.h>

#include <QCoreApplication>
#include <QWidget>

#include <memory>

namespace Orvane::Benchmarks {

/// Opens each editor in the same view state and stores none.
class FixedState : public ForwardingClient
{
public:
    FixedState(IStyleEditorClient& client, const QString& tab)
        : ForwardingClient(client), m_state(QStringLiteral("12000:9000:%1:EXPANDED").arg(tab))
    {
    }

private:
    QString IStyleEditorClient_ReadSetting(QWidget*, const QString&) override { return m_state; }
    void IStyleEditorClient_WriteSetting(QWidget*, const QString&, const QString&) override { }

    QString m_state;
};

/// A host whose user always deletes what is asked about.
class ConfirmingClient : public StandardClient
{
    using StandardClient::StandardClient;

    bool ConfirmDeletion(const LayerDeletion&) override { return true; }
};

/// The layer control on a map, as an application shows it.
class Desk
{
public:
    /// tab: that is shown at first: "GROUPS", "LAYERS" or "SCHEMES".
    Desk(const QString& path, const QString& tab);

    /// Shows the dialog, and returns when it is painted.
    void Open();
    void Close();
    /// Returns when all events are handled.
    static void Paint() { QCoreApplication::processEvents(); }

    StandardClient& Client() { return m_client; }
    StyleEditorWindow& Form();
    /// The dialog's widget of that name.
    template <typename Widget> Widget& Find(const char* name)
    {
        return *Form().findChild<Widget*>(QLatin1String(name));
    }

private:
    IStyleEditorLibrary& Library() { return m_library; }

    std::unique_ptr<SqliteLayerDatabase> m_database;
    StandardShellServices m_services;
    ConfirmingClient m_client;
    FixedState m_state;
    StyleEditorLib m_library;
};

/// A desk that is open as long as the object exists.
class OpenDesk : public Desk
{
public:
    OpenDesk(const QString& path, const QString& tab) : Desk(path, tab) { Open(); }
    ~OpenDesk() { Close(); }
};

} // namespace Orvane::Benchmarks
