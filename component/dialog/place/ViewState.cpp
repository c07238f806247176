// SPDX-License-Identifier: MIT
#include "component/dialog/place/ViewState.h"

#include "component/common/TextHelpers.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <QStringList>

namespace Orvane {

namespace {

const QString Separator = QStringLiteral(":");
const QString WithSamples = QStringLiteral(":LINE AND FILL");
const QString NotExpanded = QStringLiteral("NOT EXPANDED");

std::optional<float> UsableLength(const QString& text)
{
    const auto number = NumberInText(text);
    if (!number || !(*number > 0) || *number > double(std::numeric_limits<float>::max()))
        return std::nullopt;
    const float length = float(*number);
    return length > 0 ? std::optional(length) : std::nullopt;
}

std::optional<WindowSize> UsableSize(const QString& width, const QString& height)
{
    const auto usableWidth = UsableLength(width);
    const auto usableHeight = UsableLength(height);
    if (!usableWidth || !usableHeight)
        return std::nullopt;
    return WindowSize{*usableWidth, *usableHeight};
}

ListTab TabOfWord(const QString& word)
{
    if (word == QLatin1String("SCHEMES"))
        return ListTab::Schemes;
    if (word == QLatin1String("LAYERS") || word.isEmpty())
        return ListTab::Layers;
    return ListTab::Groups;
}

QString WordOfTab(ListTab tab)
{
    if (tab == ListTab::Groups)
        return QStringLiteral("GROUPS");
    return tab == ListTab::Layers ? QStringLiteral("LAYERS") : QStringLiteral("SCHEMES");
}

} // namespace

ViewState ViewState::FromText(const QString& text)
{
    QString rest = text;
    ViewState state;
    state.samples = rest.endsWith(WithSamples);
    if (state.samples)
        rest.chop(WithSamples.size());
    const QString width = NextToken(rest, Separator);
    const QString height = NextToken(rest, Separator);
    state.tab = TabOfWord(NextToken(rest, Separator));
    if (width.isEmpty() || height.isEmpty())
        return state;
    state.expanded = rest != NotExpanded;
    state.size = UsableSize(width, height);
    return state;
}

QString ViewState::ToText() const
{
    const QString width = size ? Orvane::ToText(size->width) : QString();
    const QString height = size ? Orvane::ToText(size->height) : QString();
    const QString expansion = expanded.value_or(true) ? QStringLiteral("EXPANDED") : NotExpanded;
    const QString left = QStringList{width, height, WordOfTab(tab), expansion}.join(Separator);
    return samples ? left + WithSamples : left;
}

} // namespace Orvane
