// SPDX-License-Identifier: MIT
// Precompiled headers for tests with widgets; each file still includes what it uses.
#pragma once

#include "CoreTestPch.h"
#include "WidgetsPch.h"

#include <QtTest>
