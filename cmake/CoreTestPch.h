// SPDX-License-Identifier: MIT
// Headers that tests without widgets read; each file still includes what it uses.
#pragma once

#include "CorePch.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
