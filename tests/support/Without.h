// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <algorithm>

namespace Orvane::Testing {

/// The texts for which the predicate is false.
template <typename Predicate> QStringList Without(QStringList texts, Predicate predicate)
{
    texts.erase(std::remove_if(texts.begin(), texts.end(), predicate), texts.end());
    return texts;
}

} // namespace Orvane::Testing
