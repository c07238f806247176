// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Orvane {

/// Reads a row as PostgreSQL writes it in one text, such as (7,"Main ""A"" road",,t): its values in their
/// text form, nothing for NULL. values: replaced; its memory is used again. False, with any values, if the
/// text is not a row.
bool ReadRowText(std::string_view text, std::vector<std::optional<std::string>>& values);

} // namespace Orvane
