// SPDX-License-Identifier: MIT
#include "component/dialog/showing/ShownOnly.h"

#include "component/model/QuickModeNames.h"

#include <QStringList>

#include <algorithm>
#include <tuple>
#include <utility>

namespace Orvane {

namespace {

const QString RangeMark = QStringLiteral("..");

// The mode that a layer gets whose own mode is to be brought back later.
qint16 ChangedMode(qint16 ownMode)
{
    return ownMode == QuickMode::Hidden ? QuickMode::Normal : QuickMode::Hidden;
}

QString RangeText(qint32 first, qint32 last)
{
    const QString text = QString::number(first);
    return first == last ? text : text + RangeMark + QString::number(last);
}

} // namespace

ShownOnly ShownOnly::FromText(const QString& text)
{
    ShownOnly read;
    for (const QString& part : text.split(QLatin1Char(';')))
        read.Read(part);
    read.Sort();
    return read;
}

// Of ranges that overlap, the first counts.
void ShownOnly::Sort()
{
    std::sort(m_ranges.begin(), m_ranges.end(), [](const Range& left, const Range& right) {
        return std::tie(left.first, left.last, left.ownMode)
            < std::tie(right.first, right.last, right.ownMode);
    });
    std::vector<Range> apart;
    apart.reserve(m_ranges.size());
    for (const Range& range : m_ranges) {
        if (apart.empty() || apart.back().last < range.first)
            apart.push_back(range);
    }
    m_ranges = std::move(apart);
}

void ShownOnly::Read(const QString& part)
{
    const qint16 mode = QuickModeNames::ModeOf(part.section(QLatin1Char('='), 0, 0));
    if (mode == QuickMode::Various)
        return;
    const QStringList ranges = part.section(QLatin1Char('='), 1).split(QLatin1Char(','));
    m_ranges.reserve(m_ranges.size() + size_t(ranges.size()));
    for (const QString& range : ranges) {
        bool isFirst = false;
        bool isLast = false;
        const qint32 first = range.section(RangeMark, 0, 0).toInt(&isFirst);
        const qint32 last = range.section(RangeMark, -1).toInt(&isLast);
        if (isFirst && isLast && first <= last)
            m_ranges.push_back({first, last, mode});
    }
}

QString ShownOnly::Text() const
{
    QStringList parts;
    for (const qint16 mode : QuickModeNames::Modes) {
        QStringList ranges;
        for (const Range& range : m_ranges) {
            if (range.ownMode == mode)
                ranges << RangeText(range.first, range.last);
        }
        if (!ranges.isEmpty())
            parts << QuickModeNames::NameOf(mode) + QLatin1Char('=') + ranges.join(QLatin1Char(','));
    }
    return parts.join(QLatin1Char(';'));
}

const ShownOnly::Range* ShownOnly::RangeOf(qint32 layerID) const
{
    const auto after
        = std::upper_bound(m_ranges.begin(), m_ranges.end(), layerID, [](qint32 id, const Range& range) {
              return id < range.first;
          });
    if (after == m_ranges.begin())
        return nullptr;
    const Range& range = *std::prev(after);
    return layerID <= range.last ? &range : nullptr;
}

bool ShownOnly::IsChanged(const LayerMode& now) const
{
    const Range* range = RangeOf(now.layerID);
    return range && now.quickMode == ChangedMode(range->ownMode);
}

qint16 ShownOnly::OwnMode(const LayerMode& now) const
{
    return IsChanged(now) ? RangeOf(now.layerID)->ownMode : now.quickMode;
}

ShownOnly ShownOnly::Of(std::vector<LayerMode> ownModes)
{
    std::sort(ownModes.begin(), ownModes.end(), [](const LayerMode& left, const LayerMode& right) {
        return left.layerID < right.layerID;
    });
    ShownOnly kept;
    for (const auto& [layerID, mode] : ownModes) {
        const bool continues = !kept.m_ranges.empty() && kept.m_ranges.back().ownMode == mode
            && qint64(kept.m_ranges.back().last) + 1 == layerID;
        if (continues)
            kept.m_ranges.back().last = layerID;
        else
            kept.m_ranges.push_back({layerID, layerID, mode});
    }
    return kept;
}

ShownOnly::Change ShownOnly::Show(const std::vector<LayerMode>& all, const LayerIDs& shown) const
{
    const auto isWanted = [&](const LayerMode& now) { return shown.count(now.layerID) > 0; };
    if (std::none_of(all.begin(), all.end(), isWanted))
        return {{}, *this};
    Change change;
    std::vector<LayerMode> ownModes;
    ownModes.reserve(all.size());
    for (const LayerMode& now : all) {
        const qint16 own = OwnMode(now);
        const bool changes = isWanted(now) == (own == QuickMode::Hidden);
        const qint16 wanted = changes ? ChangedMode(own) : own;
        if (changes)
            ownModes.push_back({now.layerID, own});
        if (wanted != now.quickMode)
            change.modes.push_back({now.layerID, wanted});
    }
    change.kept = Of(std::move(ownModes));
    return change;
}

std::vector<LayerMode> ShownOnly::Back(const std::vector<LayerMode>& all) const
{
    std::vector<LayerMode> modes;
    for (const LayerMode& now : all) {
        if (IsChanged(now))
            modes.push_back({now.layerID, OwnMode(now)});
    }
    return modes;
}

ShownOnly ShownOnly::Without(const std::vector<LayerMode>& all, const LayerIDs& layerIDs) const
{
    std::vector<LayerMode> ownModes;
    ownModes.reserve(all.size());
    for (const LayerMode& now : all) {
        if (IsChanged(now) && layerIDs.count(now.layerID) == 0)
            ownModes.push_back({now.layerID, OwnMode(now)});
    }
    return Of(std::move(ownModes));
}

} // namespace Orvane
