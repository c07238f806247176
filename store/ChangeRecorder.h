// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/store/Changeset.h>

namespace Orvane {

/// Records which rows of a layer store change during its lifetime, in all tables that have a primary key,
/// including the host's own. Changes that were rolled back or made by another program are not included.
///
///     const auto recorder = store.RecordChanges();
///     ... change rows ...
///     const Changeset changes = recorder->Changes();
///
/// Destroy it before the store.
class ChangeRecorder
{
public:
    virtual ~ChangeRecorder() = default;
    ChangeRecorder(const ChangeRecorder&) = delete;
    ChangeRecorder& operator=(const ChangeRecorder&) = delete;

    /// The changes so far. Raises errors of the store.
    virtual Changeset Changes() const = 0;

protected:
    ChangeRecorder() = default;
};

} // namespace Orvane
