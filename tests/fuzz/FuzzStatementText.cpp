// SPDX-License-Identifier: MIT
#include "fuzz/FuzzInput.h"
#include "fuzz/FuzzTargets.h"
#include "store/postgres/link/StatementText.h"
#include "store/shared/StoreErrors.h"

#include <OrvaneShellLib/RunTimeError.h>

namespace Orvane::Testing {

int FuzzStatementText(const uint8_t* data, size_t size)
{
    try {
        const StatementText statement
            = StatementText::Of(TextIn(data, size), StoreErrors(QStringLiteral("map")));
        Require(!statement.text.isEmpty(), "a statement has a text");
        Require(statement.parameters >= 0, "parameters are counted from one");
        Require(!(statement.reads && statement.changesTables), "a query changes no tables");
    } catch (const RunTimeError&) { // it is refused
    }
    return 0;
}

} // namespace Orvane::Testing
