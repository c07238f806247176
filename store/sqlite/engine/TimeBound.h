// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

namespace Orvane {

class SqliteConnection;

/// Ends statements that run too long: once the time is over, each statement of the connection raises
/// DatabaseFailure, until this object is destroyed. One per connection at a time.
class TimeBound
{
public:
    /// connection: outlives this object.
    TimeBound(SqliteConnection& connection, std::chrono::milliseconds time);
    ~TimeBound();
    TimeBound(const TimeBound&) = delete;
    TimeBound& operator=(const TimeBound&) = delete;

    /// Whether a statement was ended.
    bool HasEnded() const;

private:
    SqliteConnection& m_connection;
};

} // namespace Orvane
