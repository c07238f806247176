// SPDX-License-Identifier: MIT
#include "hosttests/SampleContents.h"

#include <limits>

namespace Orvane::HostTests {

namespace {

ContentsLayer StyledLayer(qint32 layerID, const QString& name, qint32 code)
{
    ContentsLayer layer(layerID, name, code);
    layer.Set("Color", qint32(0x0000FF + layerID)).Set("FillForeColor", qint32(0x00FF00 + layerID));
    layer.Set("OutlineStyle", layerID % 5).Set("FillStyle", layerID % 32).Set("LineThickness", -layerID);
    layer.Set("Priority", 100 + layerID).Set("OverrideMode", layerID % 3).Set("locked", layerID % 2 == 0);
    return layer;
}

std::vector<ContentsLayer> TownLayers()
{
    ContentsLayer drafts = StyledLayer(TownLayer::Drafts, QStringLiteral("Drafts"), -1);
    drafts.Set("Pseudo", true).Set("SystemLayer", true);
    return {
        StyledLayer(TownLayer::Roads, QStringLiteral("roads"), 10),
        StyledLayer(TownLayer::Zoning, QStringLiteral("Zoning"), 11),
        StyledLayer(TownLayer::Rivers, QStringLiteral("Rivers"), 12),
        StyledLayer(TownLayer::Airports, QStringLiteral("airports"), 13),
        StyledLayer(TownLayer::Hidden, QStringLiteral("Hidden"), -2),
        StyledLayer(TownLayer::DeeplyHidden, QStringLiteral("Deeply hidden"), -3),
        drafts,
        StyledLayer(TownLayer::Quoted, QStringLiteral(u"King's \"Road\" 50% %1 ^1 Stra\u00DFe \u9053"), 14)};
}

} // namespace

HostContents NoContents()
{
    return {};
}

HostContents Town()
{
    HostContents town{TownLayers()};
    town.groups
        = {{TownGroup::Water, QStringLiteral("Water"), 2},
           {TownGroup::Traffic, QStringLiteral("Traffic"), 1},
           {TownGroup::Pseudo, QStringLiteral("Drafts"), 0, true},
           {TownGroup::Empty, QStringLiteral("Empty"), 3},
           {TownGroup::Quoted, QStringLiteral(u"King's 'Cross' \u9053"), 4, false, true}};
    town.members = {{TownGroup::Water, TownLayer::Rivers, 2},     {TownGroup::Water, TownLayer::Roads, 1},
                    {TownGroup::Water, TownLayer::Zoning, 2},     {TownGroup::Traffic, TownLayer::Roads, 1},
                    {TownGroup::Traffic, TownLayer::Airports, 0}, {TownGroup::Traffic, TownLayer::Hidden, 2},
                    {TownGroup::Pseudo, TownLayer::Drafts, 0},    {TownGroup::Quoted, TownLayer::Quoted, 0}};
    return town;
}

HostContents TakingTurns()
{
    HostContents contents;
    contents.layers
        = {StyledLayer(1, QStringLiteral("One"), 1), StyledLayer(2, QStringLiteral("Two"), 2),
           StyledLayer(3, QStringLiteral("Three"), 3)};
    contents.groups = {{1, QStringLiteral("First"), 5}, {2, QStringLiteral("Second"), 5}};
    contents.members = {{1, 3, 3}, {1, 1, 1}, {2, 2, 2}};
    return contents;
}

HostContents WithNulls()
{
    ContentsLayer nulls(2, QString(), Value::Null());
    for (const LayerColumn& column : LayerColumns) {
        if (column.kind != ColumnKind::Key)
            nulls.Set(column.name, Value::Null());
    }
    return {
        {StyledLayer(1, QStringLiteral("Roads"), 1), nulls}, {{1, Value::Null(), 1}}, {{1, 1, 1}, {1, 2, 2}}};
}

HostContents AtTheLimits()
{
    constexpr qint32 least = std::numeric_limits<qint32>::min();
    constexpr qint32 greatest = std::numeric_limits<qint32>::max();
    ContentsLayer low(1, QString(), 1);
    low.Set("Color", qint32(0xFF000000u)).Set("FillBackColor", least).Set("Priority", least);
    low.Set("MinVisScale", 0.5).Set("LineThickness", qint32(-32768));
    ContentsLayer high(2, QString(2000, QChar(0x00E9)), 32767);
    high.Set("Color", qint32(0x00FFFFFF)).Set("FillBackColor", greatest).Set("Priority", greatest);
    high.Set("MinVisScale", 2147483646.5).Set("MaxVisScale", double(greatest));
    return {{low, high}};
}

} // namespace Orvane::HostTests
