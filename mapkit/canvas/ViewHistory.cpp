// SPDX-License-Identifier: MIT
#include "mapkit/canvas/ViewHistory.h"

#include "mapkit/canvas/MapCanvas.h"

#include <QScopedValueRollback>

namespace Orvane {

namespace {

constexpr size_t MostViews = 100;

bool ShowSamePlace(const MapView& one, const MapView& other)
{
    return one.Centre() == other.Centre() && one.UnitsPerPixel() == other.UnitsPerPixel();
}

} // namespace

ViewHistory::ViewHistory(MapCanvas& canvas) : m_canvas(canvas)
{
    connect(&canvas, &MapCanvas::ViewChanged, this, &ViewHistory::Note);
}

void ViewHistory::Clear()
{
    m_views.clear();
    m_current = 0;
    emit Changed();
}

void ViewHistory::Restart()
{
    m_views = {m_canvas.View()};
    m_current = 0;
    m_step = m_canvas.Step();
    emit Changed();
}

void ViewHistory::GoBack()
{
    if (CanGoBack())
        GoTo(m_current - 1);
}

void ViewHistory::GoForward()
{
    if (CanGoForward())
        GoTo(m_current + 1);
}

void ViewHistory::GoTo(size_t index)
{
    const QScopedValueRollback going(m_isGoing, true);
    m_current = index;
    m_canvas.SetView(m_views[index].Resized(m_canvas.size()));
    m_step = m_canvas.Step();
    emit Changed();
}

void ViewHistory::Note()
{
    const MapView& view = m_canvas.View();
    if (m_isGoing || m_canvas.Layers().empty())
        return;
    const bool continues = !m_views.empty() && m_step == m_canvas.Step();
    m_step = m_canvas.Step();
    if (continues) {
        m_views[m_current] = view;
        return;
    }
    if (!m_views.empty() && ShowSamePlace(m_views[m_current], view))
        return;
    if (!m_views.empty())
        m_views.erase(m_views.begin() + qsizetype(m_current) + 1, m_views.end());
    m_views.push_back(view);
    if (m_views.size() > MostViews)
        m_views.erase(m_views.begin());
    m_current = m_views.size() - 1;
    emit Changed();
}

} // namespace Orvane
