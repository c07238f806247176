// SPDX-License-Identifier: MIT
#include "store/any/StoreDifferences.h"

namespace Orvane::Testing {

namespace {

const char* const TypedColumns = "A column of numbers or flags refuses a text.";

} // namespace

const std::map<std::string, std::string>& StoreDifferences()
{
    static const std::map<std::string, std::string> differences = {
        {"GroupsTree.AGroupWithABadValueIsListedCollapsedAndMarked", TypedColumns},
        {"GroupsTree.ALayerWithABadCodeOrModeIsListedAndMarked", TypedColumns},
        {"LayerList.ALayerWithABadValueIsListedAndMarked", TypedColumns},
        {"LayersRead.AreAllReadAgainWhenOneHasGoneOrCannotBeRead", TypedColumns},
        {"LoadGroupStyleFrom.AValueThatOneMemberCannotGiveIsVarious", TypedColumns},
        {"OneLayer.WithABadModeIsMarked", TypedColumns},
    };
    return differences;
}

} // namespace Orvane::Testing
