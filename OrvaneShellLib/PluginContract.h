// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace Orvane {

class IStyleEditorLibrary;

/// The version of the interfaces in this folder. A different major version is a different contract: a host
/// and a component with different major versions refuse to work together. A higher minor version only adds to
/// the contract.
struct ContractVersion {
    qint32 major = 0; ///< only equal ones work together
    qint32 minor = 0; ///< a higher one has members that lower ones lack
};

/// The contract version of this source tree.
inline constexpr ContractVersion CurrentContract{1, 4};

/// The names of the functions that the component exports with C linkage, and their types. The host calls them
/// in this order. The caller owns the library object and deletes it before the plug-in is unloaded. The first
/// two raise nothing; the third may raise only std::bad_alloc and never returns nullptr. The second has
/// existed since version 1.1. It returns the major version of the Qt that the component was built with: a
/// host and a component with different Qt major versions refuse to work together. A component without it was
/// built with Qt 6.
inline constexpr char ContractVersionSymbol[] = "OrvaneContractVersion";
inline constexpr char QtMajorSymbol[] = "OrvaneQtMajor";
inline constexpr char CreateLibrarySymbol[] = "OrvaneCreateStyleEditorLibrary";
using ContractVersionFunction = void (*)(ContractVersion* version);
using QtMajorFunction = qint32 (*)();
using CreateLibraryFunction = IStyleEditorLibrary* (*)();

} // namespace Orvane
