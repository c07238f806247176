// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/coordinates/Box.h"
#include "mapkit/drawing/MapLayer.h"
#include "mapkit/drawing/MapView.h"
#include "mapkit/drawing/RasterBackdrop.h"
#include "mapkit/output/PageLayout.h"

#include <atomic>
#include <memory>
#include <vector>

class QPainter;

namespace Orvane {

class ILayerDatabase;
class IShellServices;

/// What a page is to show.
struct PageContents {
    std::vector<MapLayer> layers; ///< of any screen: their looks are made anew for paper
    QString system; ///< coordinate system of the map
    Box area; ///< to be shown whole, or around its middle where the settings name a scale
    std::shared_ptr<const RasterBackdrop> backdrop = nullptr; ///< under all layers; nullptr for none
};

/// A map with title, legend and scale bar, composed for one page; then painted any number of times.
///
///     const MapPage page(document.Database(), services, contents, settings);
///     painter.scale(dotsPerInch / PagePixelsPerInch, dotsPerInch / PagePixelsPerInch);
///     page.Paint(painter, cancelled);
///
/// Widths in millimetres are true on paper; a width or a symbol in pixels measures what it does on a screen
/// of 96 dots an inch. The legend lists what the page shows.
class MapPage
{
public:
    /// Reads the legend, on the database's thread; passes on what database and services raise.
    MapPage(
        ILayerDatabase& database, const IShellServices& services, PageContents contents,
        const PageSettings& settings);

    /// n of the scale 1:n of the map on this page.
    double ScaleDenominator() const;
    const PageLayout& Layout() const { return m_layout; }
    /// The map's view, in page pixels of its frame.
    const MapView& View() const { return m_view; }
    const std::vector<LegendRow>& Legend() const { return m_legend; }
    const PageSettings& Settings() const { return m_settings; }

    /// Paints the page, white paper included, in any thread. painter: stands on page pixels. Stops soon after
    /// cancelled becomes true.
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
