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

/// The contract version of this source tree. docs/promises.md lists what each minor version added.
inline constexpr ContractVersion CurrentContract{1, 5};

/// What a component assumes of a host that does not tell its version: the oldest contract. It then leaves out
/// all that came later, such as IConflictQuestion and IEditorWatch, so a host that implements these must be
/// created by CreateLibraryForSymbol.
inline constexpr ContractVersion UntoldContract{1, 0};

struct HostDescription;

/// The names of the functions that the component exports with C linkage. The host calls them in this order,
/// and refuses a component that does not fit before it calls the next. Those marked with a version may be
/// missing in components of earlier versions. None raises anything, except the last.
inline constexpr char ContractVersionSymbol[] = "OrvaneContractVersion";
/// Since 1.1. A component without it was built with Qt 6.
inline constexpr char QtMajorSymbol[] = "OrvaneQtMajor";
/// Since 1.4. A component without it is taken as one that fits.
inline constexpr char CompilerAbiSymbol[] = "OrvaneCompilerAbi";
/// Since 1.4. A host that finds it does not call the next.
inline constexpr char CreateLibraryForSymbol[] = "OrvaneCreateStyleEditorLibraryFor";
inline constexpr char CreateLibrarySymbol[] = "OrvaneCreateStyleEditorLibrary";

/// Writes the contract version that the component was built with.
using ContractVersionFunction = void (*)(ContractVersion* version);
/// Returns the major version of the Qt that the component was built with: a host and a component with
/// different Qt major versions refuse to work together.
using QtMajorFunction = qint32 (*)();
/// Returns what CompilerAbi (HostDescription.h) returned when the component was built; a literal text.
using CompilerAbiFunction = const char* (*)();
/// Makes the entry object; the caller owns it and deletes it before the plug-in is unloaded. Returns nullptr
/// if it cannot work with that host, and then writes why, for the user, in the user's language: UTF-8 that
/// ends with 0, cut to reasonSize bytes. The text continues a sentence and has no full stop. reason may be
/// nullptr.
using CreateLibraryForFunction
    = IStyleEditorLibrary* (*)(const HostDescription* host, char* reason, quint32 reasonSize);
/// Makes the entry object for a host with UntoldContract; the caller owns it as above. May raise only
/// std::bad_alloc and never returns nullptr.
using CreateLibraryFunction = IStyleEditorLibrary* (*)();

} // namespace Orvane
