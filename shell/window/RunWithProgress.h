// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/common/Progress.h"

#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <type_traits>
#include <utility>

class QWidget;

namespace Orvane {

/// How long cancelled work may take to end.
inline constexpr std::chrono::seconds CancelPatience{3};

/// Runs work in a separate thread and returns when it has ended; a dialog with progress and Cancel is shown
/// when that takes a while. The window is still painted, but accepts no input. Errors of the work, including
/// Cancelled, are raised here.
void RunWithProgress(QWidget* parent, const QString& what, const std::function<void(Progress&)>& work);

/// The same for work that may be given up: if it has not ended within that time after the user cancelled,
/// raises ReadingGivenUp and leaves its thread to itself. So the work must own all that it uses.
void RunOrGiveUp(
    QWidget* parent, const QString& what, std::function<void(Progress&)> work,
    std::chrono::milliseconds patience = CancelPatience);

/// The same for work that has a result, which is returned.
///
///     contents = ReadOrGiveUp(this, tr("Reading map data"), [sources](Progress& progress) { ... });
template <typename Work> auto ReadOrGiveUp(QWidget* parent, const QString& what, Work work)
{
    using Result = std::invoke_result_t<Work&, Progress&>;
    const auto result = std::make_shared<std::optional<Result>>();
    RunOrGiveUp(parent, what, [result, work = std::move(work)](Progress& progress) mutable {
        *result = work(progress);
    });
    return std::move(**result);
}

/// Exists in a thread as long as that may use static objects, for one that nobody waits for at the end.
class UnattendedWork
{
public:
    UnattendedWork();
    ~UnattendedWork();
    UnattendedWork(const UnattendedWork&) = delete;
    UnattendedWork& operator=(const UnattendedWork&) = delete;
};

/// Whether work that was given up, or is unattended, still runs. The program must then end without destroying
/// static objects, which the work may use.
bool IsGivenUpWorkRunning();

} // namespace Orvane
