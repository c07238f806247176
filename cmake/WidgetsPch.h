// SPDX-License-Identifier: MIT
// Precompiled headers for files with widgets; each file still includes what it uses.
#pragma once

#include "CorePch.h"

#include <QtWidgets>
