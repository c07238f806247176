// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/RunTimeError.h>

namespace Orvane {

/// Stores rows with numbers that no row has yet, also while other programs do the same: two that look at the
/// same moment find the same numbers, and only one of them can store its rows. The other looks again.
///
///     const qint32 layerID = StoreWithNextNumbers(
///         [&] { return HighestLayerID(store) + 1; }, [&](qint32 next) { return StoreLayer(store, next); });
///
/// next: returns the next number or numbers, and raises errors of the store. store: is called with these,
/// stores the rows in a transaction of its own, and returns what this function returns. If it raises
/// DatabaseFailure or DatabaseLocked and next has changed meanwhile, it is called again. Raises the errors of
/// store if next has not changed, as within a transaction of the caller's own, or after the fourth time.
template <typename Next, typename Store> auto StoreWithNextNumbers(Next next, Store store)
{
    constexpr int MostTimes = 4;
    auto numbers = next();
    const auto isOvertaken = [&]() noexcept {
        try {
            const auto before = numbers;
            numbers = next();
            return numbers != before;
        } catch (...) { // the first error tells more
            return false;
        }
    };
    for (int times = 1;; ++times) {
        try {
            return store(numbers);
        } catch (const RunTimeError& error) {
            const bool isRefused = error.Number() == int(ErrorNumber::DatabaseFailure)
                || error.Number() == int(ErrorNumber::DatabaseLocked);
            if (!isRefused || times == MostTimes || !isOvertaken())
                throw;
        }
    }
}

} // namespace Orvane
