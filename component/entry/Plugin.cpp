// SPDX-License-Identifier: MIT
// The functions by which a host finds the component.
#include "component/common/MessageFile.h"
#include "component/dialog/window/frmLayerStyles.h"
#include "component/entry/StyleEditorLib.h"

#include <OrvaneShellLib/PluginContract.h>

namespace {

std::unique_ptr<Orvane::StyleEditorWindow> MakeEditor()
{
    return std::make_unique<Orvane::frmLayerStyles>();
}

} // namespace

extern "C" {

Q_DECL_EXPORT void OrvaneContractVersion(Orvane::ContractVersion* version)
{
    *version = Orvane::CurrentContract;
}

Q_DECL_EXPORT qint32 OrvaneQtMajor()
{
    return QT_VERSION_MAJOR;
}

Q_DECL_EXPORT Orvane::IStyleEditorLibrary* OrvaneCreateStyleEditorLibrary()
{
    return new Orvane::StyleEditorLib(MakeEditor, Orvane::ComponentFolder());
}

} // extern "C"
