// SPDX-License-Identifier: MIT
#include "shell/tools/ToolRules.h"

#include <QCoreApplication>

namespace Orvane {

namespace {

QString Translated(const char* text)
{
    return QCoreApplication::translate("ToolRules", text);
}

Refusal UnseenAs(const MapLayer& layer, double denominator)
{
    if (!layer.visible)
        return Refusal::Invisible;
    if (layer.mode == DrawMode::Hidden)
        return Refusal::Hidden;
    return layer.IsInScale(denominator) ? Refusal::None : Refusal::OutOfScale;
}

const char* SentenceFor(Refusal refusal)
{
    switch (refusal) {
    case Refusal::Invisible:
        return QT_TRANSLATE_NOOP("ToolRules", "%1 is here but not visible.");
    case Refusal::Hidden:
        return QT_TRANSLATE_NOOP("ToolRules", "%1 is here but hidden by its quick mode.");
    case Refusal::OutOfScale:
        return QT_TRANSLATE_NOOP("ToolRules", "%1 is here but hidden at this scale.");
    case Refusal::NotHitable:
        return QT_TRANSLATE_NOOP("ToolRules", "%1 is here but not hitable.");
    case Refusal::NotEnquirable:
        return QT_TRANSLATE_NOOP("ToolRules", "%1 is here but not enquirable.");
    case Refusal::NotSelectable:
        return QT_TRANSLATE_NOOP("ToolRules", "%1 is here but not selectable.");
    case Refusal::Locked:
        return QT_TRANSLATE_NOOP("ToolRules", "%1 is here but locked.");
    case Refusal::NoSnap:
        return QT_TRANSLATE_NOOP("ToolRules", "%1 is here but snapping to it is off.");
    case Refusal::None:
        break;
    }
    return QT_TRANSLATE_NOOP("ToolRules", "No layer here.");
}

} // namespace

Refusal RefusalOf(const MapLayer& layer, ToolUse use, double denominator)
{
    const Refusal unseen = UnseenAs(layer, denominator);
    if (unseen != Refusal::None)
        return unseen;
    if (use == ToolUse::SnapTo)
        return layer.flags.snapRequired ? Refusal::None : Refusal::NoSnap;
    if (!layer.flags.hitable)
        return Refusal::NotHitable;
    if (use == ToolUse::Identify && !layer.flags.enquirable)
        return Refusal::NotEnquirable;
    if (use == ToolUse::Select && !layer.flags.selectable)
        return Refusal::NotSelectable;
    return use == ToolUse::Move && layer.flags.locked ? Refusal::Locked : Refusal::None;
}

QString RefusalText(Refusal refusal, const QString& layerName)
{
    const QString sentence = Translated(SentenceFor(refusal));
    return refusal == Refusal::None ? sentence : sentence.arg(layerName);
}

ToolSearch::ToolSearch(std::span<const MapLayer> layers, const MapView& view, double denominator, ToolUse use)
    : m_test(layers, view), m_denominator(denominator), m_use(use)
{
}

std::vector<Hit> ToolSearch::At(QPointF pixel) const
{
    return m_test.At(pixel, [this](const MapLayer& layer) { return Serves(layer); });
}

std::vector<const MapLayer*> ToolSearch::RastersAt(QPointF pixel) const
{
    return m_test.RastersAt(pixel, [this](const MapLayer& layer) { return Serves(layer); });
}

std::vector<Hit> ToolSearch::Within(const QRectF& pixels) const
{
    return m_test.Within(pixels, [this](const MapLayer& layer) { return Serves(layer); });
}

std::optional<QPointF> ToolSearch::SnapPoint(QPointF pixel) const
{
    return m_test.SnapPoint(pixel, [this](const MapLayer& layer) { return Serves(layer); });
}

Miss ToolSearch::MissAt(QPointF pixel) const
{
    for (const bool seen : {true, false}) {
        const MapLayer* layer = LayerAt(pixel, [&](const MapLayer& refused) {
            return refused.IsShownAt(m_denominator) == seen && !Serves(refused);
        });
        if (layer)
            return {RefusalOf(*layer, m_use, m_denominator), layer->name};
    }
    return {};
}

// The topmost one; nullptr for none.
const MapLayer* ToolSearch::LayerAt(QPointF pixel, const HitTest::Condition& wanted) const
{
    const std::vector<Hit> hits = m_test.At(pixel, wanted);
    if (!hits.empty())
        return hits.front().layer;
    if (m_use != ToolUse::Identify)
        return nullptr;
    const std::vector<const MapLayer*> rasters = m_test.RastersAt(pixel, wanted);
    return rasters.empty() ? nullptr : rasters.front();
}

bool ToolSearch::Serves(const MapLayer& layer) const
{
    return RefusalOf(layer, m_use, m_denominator) == Refusal::None;
}

} // namespace Orvane
