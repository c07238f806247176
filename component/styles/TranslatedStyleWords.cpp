// SPDX-License-Identifier: MIT
#include "component/styles/TranslatedStyleWords.h"

#include "component/common/Messages.h"

namespace Orvane {

StyleWords TranslatedStyleWords()
{
    return {
        TranslateMsg("Transparent"), TranslateMsg("<none>"), TranslateMsg("mm"), TranslateMsg("pixels"),
        TranslateMsg("Custom Line Style...")};
}

} // namespace Orvane
