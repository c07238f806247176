// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/RunTimeError.h>

namespace Orvane {

/// The error of SQLite when it has no memory. It says nothing about the file, so it is never taken for "no
/// database" or "damaged".
class NoMemoryError final : public RunTimeError
{
public:
    explicit NoMemoryError(const RunTimeError& error) : RunTimeError(error) { }
};

} // namespace Orvane
