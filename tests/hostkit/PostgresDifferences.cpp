// SPDX-License-Identifier: MIT
#include "store/any/StoreDifferences.h"

namespace Orvane::Testing {

namespace {

const char* const WholeColumns = "A column of whole numbers refuses fractions, texts and more than 32 bits.";

} // namespace

const std::map<std::string, std::string>& StoreDifferences()
{
    static const std::map<std::string, std::string> differences = {
        {"Differences.OfOneLayerAreFoundWithoutAWalkThroughAllLayers",
         "It reads how SQLite runs a statement."},
        {"Factory.AFractionalCodeTakesNoWholeOne", WholeColumns},
        {"LayerRowTest.AnotherRowsBadValuesDoNotPreventANewOne", WholeColumns},
        {"LayerRowTest.AFractionalCodeTakesNoneOfManyNewLayers", WholeColumns},
        {"LayerRowTest.CodesBeyondTheirRangeLeaveTheLowOnesFree", WholeColumns},
        {"ListedFieldsTest.AValueThatCannotBeReadGivesTheDefault", WholeColumns},
        {"Matching.LeavesALayerWithAnIDBeyond32BitsOut", WholeColumns},
        {"Matching.TakesACodeThatIsATextForNone", WholeColumns},
        {"Names.AreReadAlthoughALayerHasAnIDBeyond32Bits", WholeColumns},
        {"StoredListTest.AColumnThatTheListDoesNotChangeKeepsEvenAnUnreadableValue", WholeColumns},
    };
    return differences;
}

} // namespace Orvane::Testing
