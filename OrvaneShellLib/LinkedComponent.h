// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/OrvaneShellLib/IStyleEditorLibrary.h>
#include <orvane/OrvaneShellLib/PluginContract.h>

#include <memory>

/// For hosts that link the component into their program (CMake: Orvane::LayerControlStatic) instead of
/// loading it.
extern "C" Orvane::IStyleEditorLibrary* OrvaneCreateStyleEditorLibrary();

namespace Orvane {

/// The entry object of the linked component. Call it after the QApplication was made; destroy the object
/// before the client that it was given. Its message files are looked for in the program's own folder, as
/// "de/POBEX.LRT".
inline std::unique_ptr<IStyleEditorLibrary> LinkedStyleEditorLibrary()
{
    return std::unique_ptr<IStyleEditorLibrary>(OrvaneCreateStyleEditorLibrary());
}

} // namespace Orvane
