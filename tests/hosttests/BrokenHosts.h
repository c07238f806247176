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
std::vector<BrokenHost> HostsWithBrokenOptionals();

/// A host behind a client, made of the host's own, that has the fault.
template <typename FaultyClient, typename Host> class HostBehind : public Host
{
public:
    explicit HostBehind(const HostContents& contents) : Host(contents), m_client(Host::Client()) { }

    IStyleEditorClient& Client() override { return m_client; }

private:
    FaultyClient m_client;
};

template <typename FaultyClient, typename Host = StoreHost> HostTests::MakeHost Behind()
{
    return HostTests::HostMaker<HostBehind<FaultyClient, Host>>();
}

} // namespace Orvane::Testing
