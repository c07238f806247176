// SPDX-License-Identifier: MIT
#include "component/dialog/pasting/CopiedSettings.h"
#include "fuzz/FuzzInput.h"
#include "fuzz/FuzzTargets.h"

namespace Orvane::Testing {

int FuzzCopiedSettings(const uint8_t* data, size_t size)
{
    const std::optional<CopiedSettings> read = CopiedSettings::FromBytes(BytesIn(data, size));
    if (!read)
        return 0;
    Require(read->style.lsIsNull(Slot::Name), "a name is never copied");
    Require(read->style.lsIsNull(Slot::Code), "a code is never copied");
    const QByteArray written = read->ToBytes();
    const std::optional<CopiedSettings> again = CopiedSettings::FromBytes(written);
    Require(again && again->ToBytes() == written, "settings are read as they were written");
    Require(again->IsEmpty() == read->IsEmpty(), "settings are known after they were written");
    return 0;
}

} // namespace Orvane::Testing
