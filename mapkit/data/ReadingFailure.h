// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/RunTimeError.h>

#include <QString>

namespace Orvane {

/// Raised when the user cancelled reading that then did not end. The number is SourceUnreadable.
class ReadingGivenUp : public RunTimeError
{
public:
    /// subject: the file that was read last, with or without its folder; the description names it.
    explicit ReadingGivenUp(const QString& subject);
};

/// Why reading failed, as part of a sentence for the user: reason, or that it takes too long when a
/// ReadingBound of this thread is over. Raises Cancelled if the user cancelled.
QString WhyReadingFailed(const QString& reason);

/// Raises RunTimeError with SourceUnreadable and a sentence that names the file, or Cancelled as above.
/// reason: GDAL's message; may be empty.
[[noreturn]] void FailReading(const QString& path, const QString& reason);

/// Raises as FailReading does, for data that need too much memory.
[[noreturn]] void FailTooLarge(const QString& path);

/// Raises as FailReading does if a ReadingBound of this thread is over: what GDAL gave back is not all.
void RequireReadingInTime(const QString& path);

} // namespace Orvane
