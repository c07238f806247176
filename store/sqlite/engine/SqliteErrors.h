// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/RunTimeError.h>

namespace Orvane {

class StoreErrors;

/// The error for a result code of SQLite. message: SQLite's message for it.
RunTimeError SqliteError(const StoreErrors& errors, int resultCode, const char* message);

} // namespace Orvane
