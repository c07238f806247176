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

/// A map with 100,000 layers in groups of 50, in a server that ends with the program. It is made at its first
/// use. Pseudo group 1001000 holds 1,000 layers from all over the map.
struct ServerMap {
    /// As PostgresLayerDatabase opens it.
    static QString Place(Distance distance);
    /// As PQconnectdb takes it; the search path must be set.
    static QByteArray Connection(Distance distance);
    /// The statement that sets the search path.
    static QByteArray SearchPath();

    static constexpr int Layers = 100000;
    static constexpr int Members = 1000;
    static constexpr int Group = 1001000;
};

} // namespace Orvane::Benchmarks
