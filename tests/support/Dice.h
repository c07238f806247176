// SPDX-License-Identifier: MIT
#pragma once

#include <iterator>
#include <random>

namespace Orvane::Testing {

/// Random choices from a seed, the same on each machine.
class Dice
{
public:
    explicit Dice(unsigned seed) : m_engine(seed) { }

    /// From 0 to count - 1.
    int Below(int count) { return int(m_engine() % unsigned(count)); }
    bool Chance(int percent) { return Below(100) < percent; }
    template <typename Container> const auto& OneOf(const Container& container)
    {
        return *std::next(container.begin(), Below(int(container.size())));
    }

private:
    std::mt19937 m_engine;
};

} // namespace Orvane::Testing
