// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace Orvane::Benchmarks {

/// How far away the server is.
enum class Distance {
    Local, ///< a socket of this machine
    Far, ///< everything arrives 20 ms after it was sent, in each direction
};

/// A map with so many layers in groups of 50, in a server that ends with the program. It is made at its first
/// use. Pseudo group 1001000 holds 1,000 layers from all over the map.
class ServerMap
{
public:
    static constexpr int Members = 1000;
    static constexpr int Group = 1001000;

    /// layers: at least 2,000, without the factor 97.
    ServerMap(int layers, Distance distance) : m_layers(layers), m_distance(distance) { }

    /// As PostgresLayerDatabase opens it.
    QString Place() const;
    /// As PQconnectdb takes it; the search path must be set.
    QByteArray Connection() const;
    /// The statement that sets the search path.
    QByteArray SearchPath() const;

private:
    QString Schema() const;
    void EnsureFilled() const;
    void Fill() const;
    QString Folder() const;

    int m_layers;
    Distance m_distance;
};

} // namespace Orvane::Benchmarks
