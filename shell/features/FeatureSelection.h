// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/drawing/MapLayer.h"
#include "shell/features/FeatureKey.h"

#include <QObject>

#include <span>

namespace Orvane {

/// The features that the user has selected on the map.
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
    /// Selects those of these that are not selected, and deselects the others.
    void Toggle(const FeatureKey& key);
    void Clear() { Set({}); }

    /// Drops what can no longer be selected: features of layers that no longer exist, or are not hitable or
    /// not selectable. A layer that is merely not shown keeps its selection.
    void Keep(std::span<const MapLayer> layers);

signals:
    /// The keys have changed.
    void Changed();

private:
    FeatureKeys m_keys;
};

} // namespace Orvane
