// SPDX-License-Identifier: MIT
#include "component/dialog/showing/ShownOnly.h"
#include "fuzz/FuzzInput.h"
#include "fuzz/FuzzTargets.h"

namespace Orvane::Testing {

int FuzzShownOnly(const uint8_t* data, size_t size)
{
    const ShownOnly read = ShownOnly::FromText(TextIn(data, size));
    const QString text = read.Text();
    Require(ShownOnly::FromText(text).Text() == text, "a note is read as it was written");
    Require(read.IsEmpty() == text.isEmpty(), "a note without layers is empty");
    const std::vector<LayerMode> now{{1, QuickMode::Hidden}, {2, QuickMode::Normal}, {7, QuickMode::Hidden}};
    Require(read.Back(now).size() <= now.size(), "each layer is brought back once");
    const ShownOnly::Change change = read.Show(now, {2});
    Require(change.kept.Back(now).size() <= now.size(), "each layer is kept once");
    return 0;
}

} // namespace Orvane::Testing
