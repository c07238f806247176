// SPDX-License-Identifier: MIT
#pragma once

#include "hosttests/HostChecks.h"

#include <vector>

/// The checks, by what they check.
namespace Orvane::HostTests {

std::vector<HostCheck> TreeChecks();
std::vector<HostCheck> ListChecks();
std::vector<HostCheck> MembershipChecks();
std::vector<HostCheck> ColumnChecks();
std::vector<HostCheck> SeekChecks();
std::vector<HostCheck> CursorChecks();
std::vector<HostCheck> WritingChecks();
std::vector<HostCheck> TransactionChecks();
std::vector<HostCheck> ClientChecks();
std::vector<HostCheck> WindowChecks();
std::vector<HostCheck> SchemeChecks();
std::vector<HostCheck> ServiceChecks();
std::vector<HostCheck> SessionChecks();
std::vector<HostCheck> OptionalChecks();
std::vector<HostCheck> NoteChecks();

} // namespace Orvane::HostTests
