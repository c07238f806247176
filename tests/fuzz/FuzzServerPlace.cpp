// SPDX-License-Identifier: MIT
#include "fuzz/FuzzInput.h"
#include "fuzz/FuzzTargets.h"
#include "store/postgres/link/ServerPlace.h"

#include <OrvaneShellLib/RunTimeError.h>

namespace Orvane::Testing {

int FuzzServerPlace(const uint8_t* data, size_t size)
{
    const QString text = TextIn(data, size);
    try {
        const ServerPlace place = ServerPlace::FromText(text);
        Require(place.Find("password").isEmpty(), "a place holds no password");
        Require(ServerPlace::IsOne(text), "what is read begins like a place");
        const QString written = place.ToText();
        Require(ServerPlace::FromText(written).ToText() == written, "a place is read as it was written");
        Require(ServerPlace::FromText(written).schema == place.schema, "the map is kept");
    } catch (const RunTimeError&) { // it is refused
    }
    return 0;
}

} // namespace Orvane::Testing
