// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/OrvaneShellLib/ValueConversions.h>
#include <orvane/hostkit/StandardClient.h>
#include <orvane/hostkit/windows/EditorDock.h>
#include <orvane/store/ILayerStore.h>

#include <QCloseEvent>
#include <QInputDialog>
#include <QListWidget>
#include <QMainWindow>
#include <QMenuBar>
#include <QSettings>

namespace Orvane {

/// The main window: a list of the layers in place of a map, and the dock.
class MapWindow : public QMainWindow
{
public:
    MapWindow()
    {
        setWindowTitle("Dock Host");
        setCentralWidget(m_map);
        m_map->setSelectionMode(QAbstractItemView::ExtendedSelection);
        addDockWidget(Qt::RightDockWidgetArea, m_dock);
        m_map->setMinimumWidth(150);
        menuBar()->addMenu("&View")->addAction(m_dock->toggleViewAction());
    }

    EditorDock& Dock() { return *m_dock; }

    void Draw(ILayerStore& layers)
    {
        m_map->clear();
        for (const auto row = layers.OpenRecordset("SELECT Name FROM Layers ORDER BY Name"); !row->AtEOF();
             row->MoveNext())
            m_map->addItem(ToTextOrNone(row->Field("Name")));
    }

    void Mark(const QStringList& names)
    {
        m_map->clearSelection();
        for (const QString& name : names) {
            for (QListWidgetItem* item : m_map->findItems(name, Qt::MatchExactly))
                item->setSelected(true);
        }
    }

    void Restore() { restoreState(QSettings().value("window").toByteArray()); }

protected:
    // The editor is asked before, and closed after this.
    void closeEvent(QCloseEvent* event) override
    {
        QSettings().setValue("window", saveState());
        QMainWindow::closeEvent(event);
    }

private:
    QListWidget* m_map = new QListWidget;
    EditorDock* m_dock = new EditorDock("Main", this);
};

/// The client, with all that this host does in its own way.
class DockClient : public StandardClient
{
public:
    DockClient(ILayerStore& layers, IShellServices& services, MapWindow& window)
        : StandardClient(layers, services), m_window(window)
    {
    }

private:
    void IStyleEditorClient_ShowEditor(QWidget* form) override { m_window.Dock().ShowEditor(form); }
    void IStyleEditorClient_EditorClosed(QWidget* form) override { m_window.Dock().EditorClosed(form); }

    QString IStyleEditorClient_ReadSetting(QWidget*, const QString& key) override
    {
        return QSettings().value(key).toString();
    }
    void IStyleEditorClient_WriteSetting(QWidget*, const QString& key, const QString& value) override
    {
        QSettings().setValue(key, value);
    }
    PromptAnswer IStyleEditorClient_PromptText(const PromptRequest& request) override
    {
        if (request.kind != EntryKind::Text)
            return StandardClient::IStyleEditorClient_PromptText(request); // checks the range
        bool isGiven = false;
        const QString text = QInputDialog::getText(
            &m_window, QString(), request.title, QLineEdit::Normal, request.defaultText, &isGiven);
        return {isGiven, text};
    }
    QString IStyleEditorClient_LayerDisplayName(qint32 layerID) override
    {
        const QString name = StandardClient::IStyleEditorClient_LayerDisplayName(layerID);
        return name + QString(" (%1)").arg(layerID);
    }
    std::vector<RendererStyle> IStyleEditorClient_RendererStyles() const override
    {
        return {{1, "Sketched"}};
    }
    std::vector<NodeCommand> INodeCommands_Commands(QWidget*) override
    {
        return {{"mark", "Mark on the Map"}};
    }
    QString INodeCommands_WhyNot(const QString&, const std::vector<qint32>& layerIDs) override
    {
        return layerIDs.size() > 100 ? QString("Only up to 100 layers can be marked.") : QString();
    }
    void INodeCommands_Run(QWidget*, const QString&, const std::vector<qint32>& layerIDs) override
    {
        QStringList names;
        for (const qint32 layerID : layerIDs)
            names << StandardClient::IStyleEditorClient_LayerDisplayName(layerID);
        m_window.Mark(names);
    }
    void IStyleEditorClient_RedrawMap() override
    {
        StandardClient::IStyleEditorClient_RedrawMap();
        m_window.Draw(LayerDatabase());
    }

    MapWindow& m_window;
};

} // namespace Orvane
