// SPDX-License-Identifier: MIT
#pragma once

#include "component/model/ColumnError.h"

#include <QString>

#include <utility>

namespace Orvane {

/// The error in the user's language: "Roads: LineThickness 1639 is too large."
QString TextOf(const ColumnError& error);

/// Runs an operation that reads or writes rows. A ColumnError is raised again with its text in the user's
/// language; everything else that is raised is passed on unchanged.
template <typename Action> decltype(auto) WithColumnTexts(Action&& action)
{
    try {
        return std::forward<Action>(action)();
    } catch (const ColumnError& error) {
        throw RunTimeError(error.Number(), TextOf(error), error.Source());
    }
}

} // namespace Orvane
