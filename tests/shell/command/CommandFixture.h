// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/DataFolder.h"
#include "mapkit/document/MapDocument.h"
#include "shell/command/CommandLine.h"

#include <QTextStream>

namespace Orvane::Testing {

/// A command line, a working folder, and the output to the terminal.
class CommandFixture : public testing::Test
{
protected:
    /// The exit code; -1 where a window would open.
    int Run(const QStringList& arguments)
    {
        m_out.clear();
        m_errors.clear();
        QTextStream out(&m_out);
        QTextStream errors(&m_errors);
        const auto answer = RunCommandLine(QStringList("orvane") + arguments, {out, errors});
        if (const int* ended = std::get_if<int>(&answer))
            return *ended;
        m_request = std::get<WindowRequest>(answer);
        return -1;
    }

    /// A map of one square layer with a fill of that colour.
    QString MakeMap(const QString& name, qint32 fill = 0x0000FF)
    {
        const auto document = MapDocument::Create(m_folder.Path(name));
        document->SetSystem("EPSG:4326");
        NewLayer layer;
        layer.name = "Square";
        layer.values.fillForeColor = fill;
        layer.values.outlineStyle = 15;
        layer.path = m_folder.WriteSquare("square.geojson");
        layer.ogrLayer = "square";
        document->AddLayer(layer);
        return document->Path();
    }

    static QByteArray Content(const QString& path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
        return file.readAll();
    }

    DataFolder m_folder;
    QString m_out;
    QString m_errors;
    WindowRequest m_request;
};

} // namespace Orvane::Testing
