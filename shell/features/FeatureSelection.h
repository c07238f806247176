// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/drawing/MapLayer.h"
#include "shell/features/FeatureKey.h"

#include <QObject>

#include <span>

namespace Orvane {

/// The features that the person has selected on the map.
class FeatureSelection : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    const FeatureKeys& Keys() const { return m_keys; }

    /// Selects these and nothing else.
    void Set(FeatureKeys keys);
    /// Selects these as well.
    void Add(const FeatureKeys& keys);
    /// Selects what is not selected, and the other way round.
    void Toggle(const FeatureKey& key);
    void Clear() { Set({}); }

    /// Drops what can no longer be selected: features of layers that are gone, not hitable or not selectable.
    /// A layer that is only not shown keeps its selection.
    void Keep(std::span<const MapLayer> layers);

signals:
    /// Keys are others now.
    void Changed();

private:
    FeatureKeys m_keys;
};

} // namespace Orvane
