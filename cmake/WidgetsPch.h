// SPDX-License-Identifier: MIT
// Headers that files with widgets read; each file still includes what it uses.
#pragma once

#include "CorePch.h"

#include <QtWidgets>
