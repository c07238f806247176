// SPDX-License-Identifier: MIT
#include "hostkit/schemes/LayerMatch.h"

#include <OrvaneShellLib/ILayerDatabase.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QCryptographicHash>

#include <algorithm>
#include <cstring>
#include <iterator>

namespace Orvane {

namespace {

LayerIdentity IdentityAt(const IRecordset& row)
{
    LayerIdentity layer;
    layer.id = ToInt32(row.Field("LayerID"));
    const std::optional<double> code = NumberIn(row.Field("Code"));
    if (code && *code >= 0)
        layer.code = code;
    const Value name = row.Field("Name");
    layer.name = ToTextOrNone(name);
    return layer;
}

} // namespace

void LayerMatcher::AddTo(const LayerIdentity& layer)
{
    m_names.push_back({KeyOf(layer.name), layer.id, quint32(m_names.size())});
    if (layer.code)
        m_codes.push_back({*layer.code, layer.id});
}

void LayerMatcher::AddFrom(const LayerIdentity& layer)
{
    if (layer.code)
        m_fromCodes.push_back(*layer.code);
}

void LayerMatcher::Prepare()
{
    std::sort(m_names.begin(), m_names.end(), [](const Named& a, const Named& b) {
        return a.name != b.name ? a.name < b.name : a.place < b.place;
    });
    std::sort(m_codes.begin(), m_codes.end(), [](const Coded& a, const Coded& b) { return a.code < b.code; });
    std::sort(m_fromCodes.begin(), m_fromCodes.end());
}

std::optional<qint32> LayerMatcher::Match(const LayerIdentity& from) const
{
    if (const auto match = from.code ? WithCode(*from.code) : std::nullopt)
        return match;
    const NameKey name = KeyOf(from.name);
    const auto found = std::lower_bound(
        m_names.begin(), m_names.end(), name,
        [](const Named& layer, const NameKey& wanted) { return layer.name < wanted; });
    return found != m_names.end() && found->name == name ? std::optional(found->id) : std::nullopt;
}

// The only layer with that code, if only one is searched.
std::optional<qint32> LayerMatcher::WithCode(double code) const
{
    const auto searched = std::equal_range(m_fromCodes.begin(), m_fromCodes.end(), code);
    const auto first
        = std::lower_bound(m_codes.begin(), m_codes.end(), code, [](const Coded& layer, double wanted) {
              return layer.code < wanted;
          });
    const bool isFound = first != m_codes.end() && first->code == code;
    const bool isOnly = isFound && (std::next(first) == m_codes.end() || std::next(first)->code != code);
    return isOnly && searched.second - searched.first == 1 ? std::optional(first->id) : std::nullopt;
}

// Names are told apart by a digest, which no two of them share by chance.
LayerMatcher::NameKey LayerMatcher::KeyOf(const QString& name)
{
    const QByteArray digest = QCryptographicHash::hash(name.toUtf8(), QCryptographicHash::Sha256);
    NameKey key{};
    std::memcpy(key.data(), digest.constData(), sizeof key);
    return key;
}

void ForEachIdentity(ILayerDatabase& database, const std::function<void(const LayerIdentity&)>& visitor)
{
    const auto rows
        = database.OpenRecordset(QStringLiteral("SELECT LayerID, Code, Name FROM Layers ORDER BY LayerID"));
    for (; !rows->AtEOF(); rows->MoveNext()) {
        if (Int32In(rows->Field("LayerID"))) // nothing could refer to the layer
            visitor(IdentityAt(*rows));
    }
}

std::vector<LayerIdentity> IdentitiesOf(ILayerDatabase& database)
{
    std::vector<LayerIdentity> layers;
    ForEachIdentity(database, [&layers](const LayerIdentity& layer) { layers.push_back(layer); });
    return layers;
}

QHash<qint32, qint32>
MatchLayers(const std::vector<LayerIdentity>& from, const std::vector<LayerIdentity>& to)
{
    LayerMatcher matcher;
    for (const LayerIdentity& layer : to)
        matcher.AddTo(layer);
    for (const LayerIdentity& layer : from)
        matcher.AddFrom(layer);
    matcher.Prepare();
    QHash<qint32, qint32> matches;
    for (const LayerIdentity& layer : from) {
        if (const std::optional<qint32> match = matcher.Match(layer))
            matches.insert(layer.id, *match);
    }
    return matches;
}

QHash<qint32, qint32> MatchLayers(ILayerDatabase& from, ILayerDatabase& to)
{
    return MatchLayers(IdentitiesOf(from), IdentitiesOf(to));
}

} // namespace Orvane
