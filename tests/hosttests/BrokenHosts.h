// SPDX-License-Identifier: MIT
#pragma once

#include "hosttests/StoreHost.h"

#include <ostream>
#include <vector>

namespace Orvane::Testing {

/// A host with one fault, and the checks that must find it.
struct BrokenHost {
    const char* fault; ///< a sentence: "It sorts by case"
    HostTests::MakeHost make;
    std::vector<const char*> foundBy; ///< names of checks
};

inline void PrintTo(const BrokenHost& host, std::ostream* stream)
{
    *stream << host.fault;
}

std::vector<BrokenHost> HostsWithBrokenQueries();
std::vector<BrokenHost> HostsWithBrokenCursors();
std::vector<BrokenHost> HostsWithBrokenTransactions();
std::vector<BrokenHost> HostsWithBrokenClients();

/// The standard host behind a client, made of the standard one, that has the fault.
template <typename FaultyClient> class HostBehind : public StoreHost
{
public:
    explicit HostBehind(const HostContents& contents) : StoreHost(contents), m_client(StoreHost::Client()) { }

    IStyleEditorClient& Client() override { return m_client; }

private:
    FaultyClient m_client;
};

template <typename FaultyClient> HostTests::MakeHost Behind()
{
    return HostTests::HostMaker<HostBehind<FaultyClient>>();
}

} // namespace Orvane::Testing
