// SPDX-License-Identifier: MIT
// Headers that tests with widgets read; each file still includes what it uses.
#pragma once

#include "CoreTestPch.h"
#include "WidgetsPch.h"

#include <QtTest>
