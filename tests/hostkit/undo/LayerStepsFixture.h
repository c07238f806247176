// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/HostKitTest.h"
#include "hostkit/StandardClient.h"
#include "hostkit/StandardShellServices.h"
#include "hostkit/common/HostErrors.h"
#include "hostkit/common/HostNotifications.h"
#include "hostkit/undo/LayerSteps.h"
#include "hostkit/undo/UndoHistory.h"

#include <OrvaneShellLib/Transaction.h>

#include <QCoreApplication>
#include <QSignalSpy>

namespace Orvane::Testing {

inline const QString Standard = QStringLiteral("Standard");
inline const QString Night = QStringLiteral("Night");

class SilentClient : public StandardClient
{
public:
    using StandardClient::StandardClient;

protected:
    bool ConfirmDeletion(const LayerDeletion&) override { return true; }
};

// A map of three layers, the first two in a group, with all notifications of the client.
class Steps : public HostKitTest
{
protected:
    Steps()
    {
        AddLayer(1, QStringLiteral("Roads"), 1);
        AddLayer(2, QStringLiteral("Rivers"), 2);
        AddLayer(3, QStringLiteral("Fields"), 3);
        Database().Execute(QStringLiteral("INSERT INTO LayerGroups (ID, Name) VALUES (5, 'Lines')"));
        Database().Execute(
            QStringLiteral("INSERT INTO LayerGroupMembers (GroupID, LayerID) VALUES (5, 1), (5, 2)"));
        Listen();
    }

    void Listen()
    {
        HostNotifications& events = m_client.Notifications();
        const auto tell = [this](const QString& line) { m_told << line; };
        QObject::connect(
            &events, &HostNotifications::LayersChanged, &events, [=](const QSet<qint32>& layers) {
                QList<qint32> sorted(layers.begin(), layers.end());
                std::sort(sorted.begin(), sorted.end());
                for (const qint32 layerID : sorted)
                    tell(QStringLiteral("changed %1").arg(layerID));
            });
        QObject::connect(&events, &HostNotifications::LayerCreated, &events, [=](qint32 layerID) {
            tell(QStringLiteral("created %1").arg(layerID));
        });
        QObject::connect(&events, &HostNotifications::LayerDeleted, &events, [=](qint32 layerID) {
            tell(QStringLiteral("deleted %1").arg(layerID));
        });
        QObject::connect(
            &events, &HostNotifications::LayerRenamed, &events, [=](qint32 layerID, const QString& name) {
                tell(QStringLiteral("layer %1 is %2").arg(layerID).arg(name));
            });
        QObject::connect(
            &events, &HostNotifications::GroupRenamed, &events, [=](qint32 groupID, const QString& name) {
                tell(QStringLiteral("group %1 is %2").arg(groupID).arg(name));
            });
        QObject::connect(&events, &HostNotifications::SchemesChanged, &events, [=](const QString& current) {
            tell(QStringLiteral("scheme ") + current);
        });
    }

    IStyleEditorClient& Host() { return m_client; }
    IMapNotes& Notes() { return m_client; }
    UndoHistory& History() { return m_client.History(); }
    QStringList Told() { return std::exchange(m_told, {}); }

    // Edits a layer as an editor does.
    void Edit(qint32 layerID, const char* column, const Value& value)
    {
        const auto layers = Host().LayersTable();
        layers->Index("LayerIDIDX");
        layers->Seek("=", layerID);
        Host().BeginLayerEdit(*layers);
        layers->SetField(column, value);
        Host().LayerChanged(layerID);
        layers->Update();
    }

    void ApplyTo(qint32 layerID, const char* column, const Value& value)
    {
        Edit(layerID, column, value);
        Host().RedrawMap();
    }

    void ApplyToGroup(const QList<qint32>& layerIDs, const char* column, const Value& value)
    {
        Transaction transaction(Database());
        for (const qint32 layerID : layerIDs)
            Edit(layerID, column, value);
        transaction.Commit();
        Host().RedrawMap();
    }

    QStringList RowsOf(const QString& sql)
    {
        QStringList rows;
        const auto row = Database().OpenQuery(sql);
        for (; !row->AtEOF(); row->MoveNext())
            rows << ToText(row->Field("Line"));
        return rows;
    }

    // Every value that steps may change.
    QStringList Everything()
    {
        return RowsOf(QStringLiteral("SELECT LayerID || Name || Code || Visible || Color AS Line FROM Layers"
                                     " ORDER BY LayerID"))
            + RowsOf(QStringLiteral("SELECT GroupID || '/' || LayerID AS Line FROM LayerGroupMembers"
                                    " ORDER BY GroupID, LayerID"))
            + RowsOf(QStringLiteral("SELECT ID || Name AS Line FROM LayerGroups ORDER BY ID"))
            + RowsOf(QStringLiteral("SELECT Name || IsCurrent AS Line FROM LayerSchemes ORDER BY Name"))
            + RowsOf(QStringLiteral("SELECT SchemeID || '/' || LayerID || '/' || Color AS Line"
                                    " FROM LayerSchemeValues ORDER BY SchemeID, LayerID"));
    }

    // Runs act, which must be one step, then undoes and redoes it twice.
    void ExpectOneStep(const QString& text, const std::function<void()>& act)
    {
        Host().GetSchemeNames(); // makes the first scheme
        const QStringList before = Everything();
        act();
        const QStringList after = Everything();
        ASSERT_NE(before, after);
        EXPECT_EQ(History().UndoText(), QStringLiteral("Undo ") + text);
        for (int round = 0; round < 2; ++round) {
            History().Undo();
            EXPECT_EQ(Everything(), before);
            EXPECT_FALSE(History().CanUndo());
            EXPECT_EQ(History().RedoText(), QStringLiteral("Redo ") + text);
            History().Redo();
            EXPECT_EQ(Everything(), after);
        }
    }

    StandardShellServices m_services;
    SilentClient m_client{Database(), m_services};
    QStringList m_told;
};

} // namespace Orvane::Testing
