// SPDX-License-Identifier: MIT
#include "fuzz/FuzzInput.h"
#include "fuzz/FuzzTargets.h"
#include "hostkit/common/HostErrors.h"
#include "hostkit/schemes/SchemeDocument.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <optional>

namespace Orvane::Testing {

namespace {

// Nothing for a text that is refused.
std::optional<SchemeDocument> SchemeIn(const QByteArray& text)
{
    try {
        return SchemeDocument::FromJson(text);
    } catch (const RunTimeError& error) {
        const bool isRefusal = error.Number() == int(HostError::SchemeTextDamaged)
            || error.Number() == int(HostError::SchemeTextTooNew);
        Require(isRefusal, "a scheme is refused with the number of its fault");
        return std::nullopt;
    }
}

} // namespace

int FuzzScheme(const uint8_t* data, size_t size)
{
    const auto scheme = SchemeIn(BytesIn(data, size));
    if (!scheme)
        return 0;
    const QByteArray written = scheme->ToJson();
    const auto again = SchemeIn(written);
    Require(again.has_value(), "a scheme that was written can be read");
    Require(again->ToJson() == written, "a scheme is written as it was read");
    return 0;
}

} // namespace Orvane::Testing
