// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/OrvaneShellLib/HostDescription.h>
#include <orvane/OrvaneShellLib/IStyleEditorLibrary.h>
#include <orvane/OrvaneShellLib/RunTimeError.h>

#include <QString>

#include <memory>

/// For hosts that link the component into their program (CMake: Orvane::LayerControlStatic) instead of
/// loading it.
extern "C" Orvane::IStyleEditorLibrary*
OrvaneCreateStyleEditorLibraryFor(const Orvane::HostDescription* host, char* reason, quint32 reasonSize);

namespace Orvane {

/// The entry object of the linked component. Call it after the QApplication was made; destroy the object
/// before the client that it was given. Its message files are looked for in the program's own folder, as
/// "de/POBEX.LRT". Raises PluginFailure if it was built with another contract or compiler.
inline std::unique_ptr<IStyleEditorLibrary> LinkedStyleEditorLibrary()
{
    char reason[512] = {};
    const HostDescription host = DescribeHost();
    std::unique_ptr<IStyleEditorLibrary> library(
        OrvaneCreateStyleEditorLibraryFor(&host, reason, sizeof reason));
    if (!library)
        throw RunTimeError(ErrorNumber::PluginFailure, QString::fromUtf8(reason));
    return library;
}

} // namespace Orvane
