// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/OrvaneShellLib/PluginContract.h>

#include <QLibraryInfo>
#include <QVersionNumber>
#include <QtGlobal>

#include <cstddef>
#include <type_traits>

namespace Orvane {

/// The standard library, and those of its settings that change the layout of the types in the contract. A
/// host and a component with different texts refuse to work together. Compilers that lay out everything in
/// the same way (GCC and Clang with one standard library) have the same text. In ASCII; never nullptr.
inline const char* CompilerAbi()
{
#if defined(_MSC_VER) && defined(_DEBUG)
    return "MSVC 14 debug";
#elif defined(_MSC_VER)
    return "MSVC 14";
#elif defined(_LIBCPP_ABI_VERSION)
    return "libc++ " QT_STRINGIFY(_LIBCPP_ABI_VERSION);
#elif defined(_GLIBCXX_DEBUG)
    return "libstdc++ debug";
#elif defined(_GLIBCXX_USE_CXX11_ABI) && !_GLIBCXX_USE_CXX11_ABI
    return "libstdc++ cxx98";
#else
    return "libstdc++ cxx11";
#endif
}

/// What a host tells the component about itself. Plain data, which both sides can read before they know that
/// they fit. New members are added at the end.
struct HostDescription {
    quint32 size = sizeof(HostDescription); ///< in bytes; tells which members the host knows
    ContractVersion contract = CurrentContract; ///< that the host was built with
    qint32 qtMajor = 0; ///< of the Qt that the program runs with
    qint32 qtMinor = 0; ///< of the Qt that the program runs with
    const char* compilerAbi = CompilerAbi(); ///< not owned; the component reads it during the call only
};

static_assert(std::is_standard_layout_v<HostDescription> && std::is_trivially_copyable_v<HostDescription>);
static_assert(sizeof(ContractVersion) == 8 && offsetof(HostDescription, qtMinor) == 16);

/// The description of the program that calls this function. Make it in the host's own code, never in a
/// library that another compiler built.
inline HostDescription DescribeHost()
{
    HostDescription host;
    const QVersionNumber qt = QLibraryInfo::version();
    host.qtMajor = qt.majorVersion();
    host.qtMinor = qt.minorVersion();
    return host;
}

} // namespace Orvane
