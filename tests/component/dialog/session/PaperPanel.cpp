// SPDX-License-Identifier: MIT
// What the settings of the model show, and how the user edits them.
#include "component/dialog/session/PaperDialog.h"

namespace Orvane::Testing::Paper {

namespace {

QString CommonCode(const std::vector<const Layer*>& layers)
{
    std::set<double> codes;
    for (const Layer* layer : layers)
        codes.insert(layer->columns[Code]);
    return codes.size() == 1 ? QString::number(*codes.begin()) : QString();
}

} // namespace

std::vector<qint32> Dialog::LayerIDsOf(const Node& node) const
{
    if (!node.isGroup)
        return {node.layerID};
    const auto group = m_map.groups.find(node.groupID);
    if (group == m_map.groups.end())
        return {};
    return {group->second.members.begin(), group->second.members.end()};
}

std::vector<qint32> Dialog::ChosenLayerIDs() const
{
    std::set<qint32> layerIDs;
    std::vector<Node> nodes = more;
    if (const auto current = CurrentNode())
        nodes.push_back(*current);
    for (const Node& node : nodes) {
        for (const qint32 layerID : LayerIDsOf(node))
            layerIDs.insert(layerID);
    }
    return {layerIDs.begin(), layerIDs.end()};
}

std::vector<const Layer*> Dialog::ChosenLayers() const
{
    std::vector<const Layer*> layers;
    for (const qint32 layerID : ChosenLayerIDs()) {
        if (const auto found = m_map.layers.find(layerID); found != m_map.layers.end())
            layers.push_back(&found->second);
    }
    return layers;
}

void Dialog::Load()
{
    panel = {};
    isModified = false;
    panel.node = CurrentNode();
    if (panel.node)
        Read();
}

// What the user has changed stays.
void Dialog::Read()
{
    const auto layers = ChosenLayers();
    panel.layers = qsizetype(layers.size());
    panel.record = CommonValues(layers);
    const Values shown = AsShown(panel.record);
    for (int property = 0; property < PropertyCount; ++property) {
        if (!IsMarked(Property(property)))
            panel.shown[size_t(property)] = shown[size_t(property)];
    }
    const int mode = ReadMode();
    panel.mode = panel.mode == panel.loadedMode ? mode : panel.mode;
    panel.loadedMode = mode;
    if (!more.empty()) {
        panel.code = CommonCode(layers);
        return;
    }
    if (panel.node->isGroup)
        return;
    panel.canEditCode = layers.empty() || !layers.front()->isSystem;
    if (layers.empty())
        return;
    panel.storedCode = layers.front()->columns[Code];
    if (!panel.isCodeMarked)
        panel.code = QString::number(*panel.storedCode);
}

// The nodes of the layers that are read show their modes, too.
int Dialog::ReadMode()
{
    std::set<int> modes;
    for (const qint32 layerID : ChosenLayerIDs()) {
        if (!m_map.layers.count(layerID))
            continue;
        modes.insert(EntryOf(layerID).mode);
        for (List& list : lists)
            list.SetMode(layerID, EntryOf(layerID).mode);
    }
    if (modes.empty() && !panel.node->isGroup && more.empty())
        return lists[shownList].ModeOf(*panel.node);
    return modes.size() == 1 ? *modes.begin() : 0;
}

bool Dialog::IsMarked(Property property) const
{
    return panel.marked.count(property == Thickness ? LineStyle : property) > 0;
}

// A value that nobody touched is not written if it would come back changed, or if the layer has another one
// by now.
Values Dialog::ValuesToWrite(const Layer& layer) const
{
    const Values stored = CommonValues({&layer});
    Values values = panel.shown;
    for (int property = 0; property < PropertyCount; ++property) {
        const bool isScale = property == MinScale || property == MaxScale; // one index for many scales
        const bool wouldChange = panel.shown[size_t(property)] != panel.record[size_t(property)]
            || stored[size_t(property)] != panel.record[size_t(property)];
        if (!IsMarked(Property(property)) && (wouldChange || isScale))
            values[size_t(property)].reset();
    }
    return values;
}

void Dialog::Mark(Property property)
{
    const bool isLine = property == LineStyle || property == Thickness;
    const bool differs = isLine ? panel.shown[LineStyle] != panel.record[LineStyle]
            || panel.shown[Thickness] != panel.record[Thickness]
                                : panel.shown[property] != panel.record[property];
    const Property marked = isLine ? LineStyle : property;
    if (!differs) {
        panel.marked.erase(marked);
        return;
    }
    panel.marked.insert(marked);
    isModified = true;
}

void Dialog::SetFlag(Property flag)
{
    const bool needsHitable = flag == IsSelectable || flag == IsEnquirable;
    if (needsHitable && panel.shown[IsHitable] == 0.0)
        return;
    std::optional<double>& shown = panel.shown[flag];
    const bool offersVarious = !panel.record[flag];
    if (!shown)
        shown = 0;
    else if (*shown == 0)
        shown = 1;
    else
        shown = offersVarious ? std::nullopt : std::optional<double>(0);
    Mark(flag);
}

void Dialog::SetValues(const std::vector<std::pair<Property, std::optional<double>>>& values)
{
    for (const auto& [property, value] : values)
        panel.shown[property] = value;
    Mark(values.front().first);
}

void Dialog::SetMinScale(std::optional<double> index)
{
    SetValues({{MinScale, index}});
    if (index && panel.shown[MaxScale].value_or(257) < *index)
        SetValues({{MaxScale, index}});
}

void Dialog::SetMaxScale(std::optional<double> index)
{
    SetValues({{MaxScale, index == 256.0 ? 0.0 : index}});
    if (index && panel.shown[MinScale].value_or(0) > *index)
        SetValues({{MinScale, index}});
}

void Dialog::SetMode(int mode)
{
    panel.mode = mode;
    isModified = isModified || mode != panel.loadedMode;
}

void Dialog::EnterCode(const QString& text)
{
    const double code = text.toDouble();
    if (panel.storedCode != code && m_map.HasCode(code)) {
        m_boxes.append(
            QStringLiteral("Code %1 has already been assigned. Please assign another code.").arg(text));
        return;
    }
    if (!panel.code.isEmpty() && panel.code.toDouble() == code)
        return;
    panel.code = text;
    panel.isCodeMarked = true;
    isModified = true;
}

} // namespace Orvane::Testing::Paper
