// SPDX-License-Identifier: MIT
#include "component/dialog/showing/ShownLayers.h"

#include "component/common/Component.h"
#include "component/dialog/showing/ModeStore.h"
#include "component/model/LayerCursors.h"

#include <algorithm>

namespace Orvane {

namespace {

std::vector<LayerMode> ReadSortedModes()
{
    std::vector<LayerMode> modes = ReadAllQuickModes(Client());
    std::sort(modes.begin(), modes.end(), [](const LayerMode& left, const LayerMode& right) {
        return left.layerID < right.layerID;
    });
    return modes;
}

ShownCount CountShown(const std::vector<LayerMode>& all)
{
    const auto hidden = std::count_if(
        all.begin(), all.end(), [](const LayerMode& mode) { return mode.quickMode == QuickMode::Hidden; });
    return {qsizetype(all.size()) - qsizetype(hidden), qsizetype(all.size())};
}

} // namespace

void ShownLayers::Read()
{
    const ShownOnly shownOnly = ModeStore::ReadShownOnly();
    if (shownOnly.IsEmpty()) {
        Forget();
        return;
    }
    m_modes = ReadSortedModes();
    CountFor(shownOnly);
}

void ShownLayers::Follow(const std::vector<LayerMode>& changed)
{
    const ShownOnly shownOnly = ModeStore::ReadShownOnly();
    if (shownOnly.IsEmpty()) {
        Forget();
        return;
    }
    if (!Update(changed))
        m_modes = ReadSortedModes();
    CountFor(shownOnly);
}

void ShownLayers::Forget()
{
    m_modes.clear();
    m_count.reset();
}

// False if one of the layers is not known.
bool ShownLayers::Update(const std::vector<LayerMode>& changed)
{
    for (const LayerMode& mode : changed) {
        const auto known = std::lower_bound(
            m_modes.begin(), m_modes.end(), mode.layerID,
            [](const LayerMode& each, qint32 layerID) { return each.layerID < layerID; });
        if (known == m_modes.end() || known->layerID != mode.layerID)
            return false;
        known->quickMode = mode.quickMode;
    }
    return !m_modes.empty();
}

void ShownLayers::CountFor(const ShownOnly& shownOnly)
{
    m_count.reset();
    if (!shownOnly.Back(m_modes).empty())
        m_count = CountShown(m_modes);
}

} // namespace Orvane
