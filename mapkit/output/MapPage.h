// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/coordinates/Box.h"
#include "mapkit/drawing/MapLayer.h"
#include "mapkit/drawing/MapView.h"
#include "mapkit/output/PageLayout.h"

#include <QColor>

#include <atomic>
#include <memory>
#include <vector>

class QPainter;

namespace Orvane {

class ILayerDatabase;
class IShellServices;

/// The contents of a page.
struct PageContents {
    std::vector<MapLayer> layers; ///< their looks are created again for paper
    QString system; ///< coordinate system of the map
    Box area; ///< shown completely, or around its middle if the settings have a scale
    QColor background = Qt::white; ///< of the map; the rest of the page is white
};

/// A map with title, legend and scale bar, laid out for one page. It can be painted any number of times.
///
///     const MapPage page(document.Database(), services, contents, settings);
///     painter.scale(dotsPerInch / PagePixelsPerInch, dotsPerInch / PagePixelsPerInch);
///     page.Paint(painter, cancelled);
///
/// Widths in millimetres are exact on paper; widths and symbols in pixels have the size that they have on a
/// screen of 96 dots per inch. The legend lists what the page shows.
class MapPage
{
public:
    /// Reads the legend; call it on the database's thread. Errors of the database and the services are passed
    /// on.
    MapPage(
        ILayerDatabase& database, const IShellServices& services, PageContents contents,
        const PageSettings& settings);

    /// The n of the scale 1:n of the map on this page.
    double ScaleDenominator() const;
    const PageLayout& Layout() const { return m_layout; }
    /// The view of the map, in page pixels relative to its frame.
    const MapView& View() const { return m_view; }
    const std::vector<LegendRow>& Legend() const { return m_legend; }
    const PageSettings& Settings() const { return m_settings; }

    /// Paints the page, including the white paper, on any thread. painter: in page pixels. Stops soon after
    /// cancelled becomes true. Raises for a raster with damaged data.
    void Paint(QPainter& painter, const std::atomic<bool>& cancelled) const;

private:
    MapView ViewFor(const PageLayout& layout) const;
    double DenominatorOf(const MapView& view) const;
    QString ScaleText() const;
    void PaintMapFrame(QPainter& painter, const std::atomic<bool>& cancelled) const;
    void PaintLayers(QPainter& painter, const std::atomic<bool>& cancelled) const;
    void PaintWithPictures(QPainter& painter, const std::atomic<bool>& cancelled) const;
    void PaintScaleBar(QPainter& painter) const;
    void PaintTitle(QPainter& painter) const;

    PageContents m_contents;
    PageSettings m_settings;
    double m_metresPerUnit;
    double m_groundMetresPerUnit = 1; // at the middle of the map
    std::vector<LegendRow> m_legend;
    PageLayout m_layout;
    MapView m_view;
};

} // namespace Orvane
