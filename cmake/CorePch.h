// SPDX-License-Identifier: MIT
// Headers that nearly every file without widgets reads; each file still includes what it uses.
#pragma once

#include <QString>
#include <QStringList>
#include <QtGlobal>

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
