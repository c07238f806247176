// SPDX-License-Identifier: MIT
#pragma once

#include "samples/StyleStrings.h"

namespace Orvane {

/// The words of picker items in the language of the moment; ask anew whenever a list is built.
StyleWords TranslatedStyleWords();

} // namespace Orvane
