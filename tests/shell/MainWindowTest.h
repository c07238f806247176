// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/DataFolder.h"
#include "mapkit/document/MapDocument.h"
#include "shell/MainWindow.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <QAction>
#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QSettings>
#include <QUrl>

#include <gtest/gtest.h>

namespace Orvane::Testing {

/// Orvane's window, with a folder for its files.
class MainWindowTest : public testing::Test
{
protected:
    MainWindowTest()
    {
        QSettings().clear();
        m_window = std::make_unique<MainWindow>();
        m_window->show();
    }

    // Drops files on the window.
    void LetGo(const QStringList& paths)
    {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& path : paths)
            urls << QUrl::fromLocalFile(path);
        data.setUrls(urls);
        QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_window.get(), &enter);
        QDropEvent event({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_window.get(), &event);
    }
    // The same, and returns when they are opened.
    void Drop(const QStringList& paths)
    {
        LetGo(paths);
        QApplication::processEvents();
    }

    QString MakeMap(const QString& name)
    {
        const auto document = MapDocument::Create(m_folder.Path(name));
        NewLayer layer;
        layer.name = "Square";
        layer.path = m_folder.WriteSquare("square.geojson");
        layer.ogrLayer = "square";
        document->SetSystem("EPSG:4326");
        document->AddLayer(layer);
        return document->Path();
    }

    int Count(const QString& table)
    {
        const QString sql = "SELECT count(*) AS N FROM " + table;
        return ToInt32(m_window->Document().Database().OpenRecordset(sql)->Field("N"));
    }

    QString Label(const char* name) const { return m_window->findChild<QLabel*>(name)->text(); }
    QAction* Action(const char* name) const { return m_window->findChild<QAction*>(name); }

    DataFolder m_folder;
    std::unique_ptr<MainWindow> m_window;
};

} // namespace Orvane::Testing
