// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <QtGlobal>

#include <array>
#include <functional>
#include <optional>
#include <vector>

namespace Orvane {

class ILayerDatabase;

/// What identifies a layer in another map.
struct LayerIdentity {
    qint32 id = 0; ///< the LayerID, or any other number that is unique in its list
    std::optional<double> code; ///< 0 or more; none for a layer that is not matched by code
    QString name; ///< as in the column Name
};

/// Calls the visitor for each layer of a database, in the order of their IDs.
void ForEachIdentity(
    ILayerDatabase& database, const std::function<void(const LayerIdentity& layer)>& visitor);

/// Finds the layers of one list in another, which need not be in memory: it holds a few bytes of each layer.
/// Two layers are the same if they have the same code and no other layer in either list has it; otherwise, if
/// they have the same name. If several layers have that name, the first one is used.
///
///     matcher.AddTo(...);   // each layer of the list in which it searches
///     matcher.AddFrom(...); // each layer that is searched
///     matcher.Prepare();
///     match = matcher.Match(layer);
class LayerMatcher
{
public:
    /// Adds a layer of the list in which it searches.
    void AddTo(const LayerIdentity& layer);
    /// Adds a layer that is searched.
    void AddFrom(const LayerIdentity& layer);
    /// Call it after all layers were added.
    void Prepare();
    /// The ID of the layer that is the same in the list in which it searches.
    std::optional<qint32> Match(const LayerIdentity& from) const;

private:
    using NameKey = std::array<quint64, 2>; // a digest of a name
    struct Named {
        NameKey name;
        qint32 id;
        quint32 place; // in the list
    };
    struct Coded {
        double code;
        qint32 id;
    };

    static NameKey KeyOf(const QString& name);
    std::optional<qint32> WithCode(double code) const;

    std::vector<Named> m_names;
    std::vector<Coded> m_codes;
    std::vector<double> m_fromCodes;
};

/// All layers of a database, in the order of their IDs.
std::vector<LayerIdentity> IdentitiesOf(ILayerDatabase& database);

/// Maps the layers of one list that are also in another, as LayerMatcher finds them: from the ID in the first
/// list to the ID in the second.
QHash<qint32, qint32>
MatchLayers(const std::vector<LayerIdentity>& from, const std::vector<LayerIdentity>& to);

/// As above, for the layers of two databases, by their LayerIDs.
QHash<qint32, qint32> MatchLayers(ILayerDatabase& from, ILayerDatabase& to);

} // namespace Orvane
