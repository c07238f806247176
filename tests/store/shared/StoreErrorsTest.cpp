// SPDX-License-Identifier: MIT
#include "store/shared/StoreErrors.h"

#include "store/StoreTexts.h"

#include <gtest/gtest.h>

namespace Orvane::Testing {

TEST(StoreErrors, TheDescriptionNamesTheFileAndTheDetail)
{
    const StoreErrors errors(QStringLiteral("map.ovl"));
    EXPECT_EQ(
        errors.Failure(StoreTexts::Refused, QStringLiteral("no such thing")).Description(),
        QStringLiteral("The layer database \"map.ovl\" refused an operation: no such thing"));
}

TEST(StoreErrors, AMarkInsideTheFilesNameIsLeftAlone)
{
    const StoreErrors errors(QStringLiteral("^2.ovl"));
    EXPECT_EQ(
        errors.Failure(StoreTexts::UnknownTable, QStringLiteral("^1")).Description(),
        QStringLiteral("The layer database \"^2.ovl\" has no table \"^1\" to open."));
}

TEST(StoreErrors, ADatabaseInMemoryHasANameToo)
{
    EXPECT_EQ(
        StoreErrors(QString()).Failure(StoreTexts::NotALayerDatabase).Description(),
        QStringLiteral("\":memory:\" is not a map file."));
}

TEST(StoreErrors, AStoreThatIsNotAFileIsCalledByItsName)
{
    EXPECT_EQ(
        StoreErrors(StoreErrors::Named{QStringLiteral("Town (team)")})
            .Failure(StoreTexts::NotALayerDatabase)
            .Description(),
        QStringLiteral("\"Town (team)\" is not a map file."));
}

} // namespace Orvane::Testing
