// SPDX-License-Identifier: MIT
#pragma once

#include <QPainter>

namespace Orvane {

/// Saves the state of a painter, and restores it at the end of its life, also after an error.
class PainterState
{
public:
    /// painter: outlives this object.
    explicit PainterState(QPainter& painter) : m_painter(painter) { m_painter.save(); }
    ~PainterState() { m_painter.restore(); }
    PainterState(const PainterState&) = delete;
    PainterState& operator=(const PainterState&) = delete;

private:
    QPainter& m_painter;
};

} // namespace Orvane
