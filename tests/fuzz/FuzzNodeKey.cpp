// SPDX-License-Identifier: MIT
#include "component/dialog/nodes/NodeKey.h"
#include "fuzz/FuzzInput.h"
#include "fuzz/FuzzTargets.h"

namespace Orvane::Testing {

int FuzzNodeKey(const uint8_t* data, size_t size)
{
    const QString text = TextIn(data, size);
    const NodeReference node
        = ReadNodeKey(text.section(QLatin1Char('\t'), 0, 0), text.section(QLatin1Char('\t'), 1));
    const QString key = MakeNodeKey(node); // IDs of seven characters are in the range of the keys
    Require(key.size() == 15, "a key that was read is written in 15 characters");
    Require(ReadNodeKey(key, MakeImageKey(node)) == node, "a node is read as it was written");
    return 0;
}

} // namespace Orvane::Testing
