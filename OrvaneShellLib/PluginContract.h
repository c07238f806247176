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
inline constexpr ContractVersion CurrentContract{1, 1};

/// The names of the functions that the component exports with C linkage, and their types. The host calls them
/// in this order. The library object is the caller's to delete, before the plug-in is unloaded. The first two
/// raise nothing, the third std::bad_alloc at most, and it never returns nullptr. The second, since
/// version 1.1, returns the major version of the Qt that the component was built with: host and component of
/// different majors refuse one another. A component without it was built with Qt 6.
inline constexpr char ContractVersionSymbol[] = "OrvaneContractVersion";
inline constexpr char QtMajorSymbol[] = "OrvaneQtMajor";
inline constexpr char CreateLibrarySymbol[] = "OrvaneCreateStyleEditorLibrary";
using ContractVersionFunction = void (*)(ContractVersion* version);
using QtMajorFunction = qint32 (*)();
using CreateLibraryFunction = IStyleEditorLibrary* (*)();

} // namespace Orvane
