// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/OrvaneShellLib/IStyleEditor.h>
#include <orvane/OrvaneShellLib/IStyleEditorLibrary.h>
#include <orvane/hostkit/LayerList.h>
#include <orvane/hostkit/StandardClient.h>
#include <orvane/hostkit/StandardShellServices.h>
#include <orvane/hostkit/StyleEditorPlugin.h>
#include <orvane/samples/BgrColour.h>
#include <orvane/store/ILayerStore.h>
#include <orvane/store/opening/LayerStores.h>

#include <QPainter>
#include <QWidget>

#include <memory>
#include <vector>

/// A layer of this program, which knows nothing of layer databases.
struct Line {
    qint32 id;
    QString name;
    QColor colour;
    bool shown = true;
};

/// Draws its lines, which a layer control edits.
class LinesWindow : public QWidget
{
public:
    explicit LinesWindow(std::vector<Line> lines)
    {
        SetLines(std::move(lines));
        m_client.SetMainWindow(this);
        m_component.Library().Initialise(&m_client);
        connect(&m_list, &Orvane::LayerList::Changed, this, [this] { ReadLines(); });
    }

    Orvane::StandardClient& Client() { return m_client; }
    const std::vector<Line>& Lines() const { return m_lines; }
    void ShowLayerControl() { m_component.Library().NewStyleEditor("Main")->Visible(true); }

    void SetLines(std::vector<Line> lines)
    {
        std::vector<Orvane::ListedLayer> layers(lines.size());
        for (size_t i = 0; i < lines.size(); ++i) {
            layers[i] = m_list.Layer(lines[i].id).value_or(layers[i]); // keeps what a line does not have
            layers[i].id = lines[i].id;
            layers[i].name = lines[i].name;
            layers[i].lineColour = Orvane::BgrFromQColor(lines[i].colour);
            layers[i].visible = lines[i].shown;
        }
        m_list.Update(layers);
        m_lines = std::move(lines);
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        for (int i = 0; i < int(m_lines.size()); ++i) {
            if (m_lines[size_t(i)].shown)
                painter.fillRect(20, 20 + 20 * i, width() - 40, 5, m_lines[size_t(i)].colour);
        }
    }

private:
    void ReadLines()
    {
        m_lines.clear();
        for (const Orvane::ListedLayer& layer : m_list.Layers())
            m_lines.push_back({layer.id, layer.name, Orvane::QColorFromBgr(layer.lineColour), layer.visible});
        update();
    }

    std::vector<Line> m_lines;
    std::unique_ptr<Orvane::ILayerStore> m_store = Orvane::LayerStores::CreateInMemory();
    Orvane::StandardShellServices m_services;
    Orvane::StandardClient m_client{*m_store, m_services};
    Orvane::LayerList m_list{*m_store, m_client};
    Orvane::StyleEditorPlugin m_component; // destroyed first: it ends its editors through the client
};
