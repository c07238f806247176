// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/DataFolder.h"
#include "mapkit/document/MapDocument.h"
#include "shell/MainWindow.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <QAction>
#include <QLabel>
#include <QSettings>

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
