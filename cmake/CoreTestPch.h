// SPDX-License-Identifier: MIT
// Precompiled headers for tests without widgets; each file still includes what it uses.
#pragma once

#include "CorePch.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
