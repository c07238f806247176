// SPDX-License-Identifier: MIT
#pragma once

#include "shell/features/Highlight.h"

#include <QObject>
#include <QString>

namespace Orvane {

class MapCanvas;

/// Marks the topmost feature of a hitable layer under the pointer, whichever tool is active.
class HoverHighlight : public QObject
{
    Q_OBJECT
public:
    /// Is off at first. canvas: not owned; outlives this object.
    explicit HoverHighlight(MapCanvas& canvas);

    void SetOn(bool on);
    bool IsOn() const { return m_on; }
    /// What is marked: one feature or none.
    const FeatureKeys& Keys() const { return m_highlight.Keys(); }

signals:
    /// The name of the layer under the pointer, or why there is none; empty when the pointer left.
    void StatusChanged(const QString& text);

private:
    void LookAt(QPointF map);
    void Forget();
    void Tell(const QString& text);

    MapCanvas& m_canvas;
    Highlight m_highlight;
    QString m_told;
    bool m_on = false;
};

} // namespace Orvane
