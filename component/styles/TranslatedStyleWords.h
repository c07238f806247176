// SPDX-License-Identifier: MIT
#pragma once

#include "samples/StyleStrings.h"

namespace Orvane {

/// The words of picker items in the current language; call it each time a list is built.
StyleWords TranslatedStyleWords();

} // namespace Orvane
