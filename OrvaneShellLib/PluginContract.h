// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace Orvane {

class IStyleEditorLibrary;

/// The version of the interfaces in this folder. Another major version is another contract: host and
/// component of different majors refuse one another. A higher minor version only adds.
struct ContractVersion {
    qint32 major = 0;
    qint32 minor = 0;
};

/// The contract that this source tree speaks.
inline constexpr ContractVersion CurrentContract{1, 0};

/// The names of the two functions that the component exports with C linkage, and their types. The host calls
/// the first before the second. The library object is the caller's to delete, before the plug-in is unloaded.
/// The first raises nothing, the second std::bad_alloc at most, and it never answers nullptr.
inline constexpr char ContractVersionSymbol[] = "OrvaneContractVersion";
inline constexpr char CreateLibrarySymbol[] = "OrvaneCreateStyleEditorLibrary";
using ContractVersionFunction = void (*)(ContractVersion* version);
using CreateLibraryFunction = IStyleEditorLibrary* (*)();

} // namespace Orvane
