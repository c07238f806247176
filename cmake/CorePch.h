// SPDX-License-Identifier: MIT
// Precompiled headers for files without widgets; each file still includes what it uses.
#pragma once

#include <QtCore>

#include <algorithm>
#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <variant>
#include <vector>
