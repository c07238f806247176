// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/OrvaneShellLib/ForwardingClient.h>
#include <orvane/OrvaneShellLib/IStyleEditorForm.h>
#include <orvane/OrvaneShellLib/IStyleEditorRefresh.h>
#include <orvane/OrvaneShellLib/IStyleFilter.h>
#include <orvane/OrvaneShellLib/RunTimeError.h>
#include <orvane/OrvaneShellLib/Transaction.h>
#include <orvane/OrvaneShellLib/ValueConversions.h>
#include <orvane/store/ILayerStore.h>
#include <orvane/store/StoreTable.h>

#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QSet>

namespace Orvane {

/// All that a host may implement besides IStyleEditorClient, each in a few lines; the rest is another
/// client's. A host of its own derives from IStyleEditorClient and from those interfaces that it has use for.
/// Commands of its own are in ../dock_host.
class OptionalParts : public ForwardingClient
{
public:
    /// client: over layers, which can be changed. map: shows the map's scale as its text. None is owned; all
    /// outlive this object.
    OptionalParts(IStyleEditorClient& client, ILayerStore& layers, QLabel& map)
        : ForwardingClient(client), m_layers(layers), m_map(map)
    {
        m_layers.PrepareTable({"Notes", {{"Name"}, {"Content"}}, {"Name"}});
    }

    const QSet<QWidget*>& Editors() const { return m_editors; }

protected:
    /// Asks whether several layers are to be deleted.
    virtual bool Agrees(const QString& question)
    {
        return QMessageBox::question(&m_map, {}, question) == QMessageBox::Yes;
    }

private:
    ConflictChoice IConflictQuestion_AskAboutConflicts(
        QWidget*, const QString& node, const std::vector<ConflictingEdit>& edits) override
    {
        QString question = node + " was changed elsewhere. Store your values all the same?";
        for (const ConflictingEdit& edit : edits)
            question += QString("\n%1: %2, stored: %3").arg(edit.property, edit.mine, edit.stored);
        return Agrees(question) ? ConflictChoice::Overwrite : ConflictChoice::KeepStored;
    }

    void IEditorWatch_EditorShown(QWidget* form) override
    {
        m_editors.insert(form);
        ForwardingClient::IEditorWatch_EditorShown(form);
    }
    void IEditorWatch_EditorEnded(QWidget* form) override
    {
        m_editors.remove(form);
        m_map.setEnabled(false); // its choice ends too
        ForwardingClient::IEditorWatch_EditorEnded(form);
    }

    void IManyLayers_DeleteLayers(const std::vector<qint32>& layerIDs) override
    {
        if (!Agrees(QString("Delete %1 layers?").arg(layerIDs.size())))
            return;
        Transaction transaction(m_layers); // all or none
        for (const qint32 layerID : layerIDs)
            for (const char* table : {"LayerGroupMembers", "Layers"})
                m_layers.Execute(QString("DELETE FROM %1 WHERE LayerID = ?1").arg(table), {layerID});
        transaction.Commit();
    }

    double IMapScale_CurrentScale() const override
    {
        return m_map.text().toDouble(); // 25000 for 1:25000; 0 while no map is shown
    }

    bool ISchemeManager_CanManageSchemes() const override { return true; }
    void ISchemeManager_ManageSchemes(QWidget* form) override
    {
        QDialog window(form);
        QListWidget schemes(&window);
        schemes.addItems(GetSchemeNames());
        QObject::connect(&schemes, &QListWidget::itemActivated, [&](const QListWidgetItem* item) {
            try {
                SaveScheme(item->text());
            } catch (const RunTimeError& error) {
                QMessageBox::warning(&window, {}, error.Description());
            }
        });
        window.exec();
    }

    QString ILayerSource_Source(qint32 layerID) override
    {
        const auto row = m_layers.OpenQuery("SELECT Name FROM Layers WHERE LayerID = ?1", {layerID});
        return row->AtEOF() ? QString() : ToTextOrNone(row->Field("Name")) + ".gpkg";
    }

    void IChoiceWatch_LayersChosen(QWidget*, const std::vector<qint32>& layerIDs) override
    {
        m_map.setEnabled(!layerIDs.empty());
    }

    bool IMapNotes_KeepsNotes() const override { return true; }
    QString IMapNotes_Note(const QString& key) override
    {
        const auto note = m_layers.OpenQuery("SELECT Content FROM Notes WHERE Name = ?1", {key});
        return note->AtEOF() ? QString() : ToText(note->Field("Content"));
    }
    void IMapNotes_SetNote(const QString& key, const QString& text) override // inside a transaction
    {
        m_layers.Execute("DELETE FROM Notes WHERE Name = ?1", {key});
        m_layers.Execute("INSERT INTO Notes (Name, Content) VALUES (?1, ?2)", {key, text});
    }

    ILayerStore& m_layers;
    QLabel& m_map;
    QSet<QWidget*> m_editors;
};

/// Shows the layers with an even number in the flat list.
class EvenLayers : public IStyleFilter
{
    bool IStyleFilter_ShowsGroups() const override { return false; }
    bool IStyleFilter_IsLayerShown(qint32 layerID, bool pseudo) const override
    {
        return layerID % 2 == 0 && !pseudo;
    }
};

/// Has an editor read these layers again, of which nothing but columns were changed.
inline void ReadAgain(QWidget* form, const QSet<qint32>& layerIDs)
{
    if (auto* refresh = dynamic_cast<IStyleEditorRefresh*>(form))
        refresh->RefreshLayers(layerIDs);
    else if (auto* editor = dynamic_cast<IStyleEditorForm*>(form)) // of a component before contract 1.5
        editor->Refresh();
}

} // namespace Orvane
