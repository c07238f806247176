// SPDX-License-Identifier: MIT
// The functions by which a host finds the component.
#include "component/common/Component.h"
#include "component/common/MessageFile.h"
#include "component/dialog/window/frmLayerStyles.h"
#include "component/entry/HostCheck.h"
#include "component/entry/StyleEditorLib.h"

namespace {

std::unique_ptr<Orvane::StyleEditorWindow> MakeEditor()
{
    return std::make_unique<Orvane::frmLayerStyles>();
}

Orvane::IStyleEditorLibrary* NewLibrary(const Orvane::ContractVersion& host)
{
    return new Orvane::StyleEditorLib(MakeEditor, Orvane::ComponentFolder(), host);
}

// The text is needed before there is an entry object, which would load the messages.
QString TranslatedReasonAgainst(const Orvane::HostDescription& host)
{
    if (Orvane::ReasonAgainst(host).isEmpty())
        return {};
    Orvane::Component::Get().SetMessageFolder(Orvane::ComponentFolder());
    Orvane::Component::Get().LoadMessages();
    return Orvane::ReasonAgainst(host);
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

Q_DECL_EXPORT const char* OrvaneCompilerAbi()
{
    return Orvane::CompilerAbi();
}

// No exception may leave it: the host's compiler may not be able to catch it.
Q_DECL_EXPORT Orvane::IStyleEditorLibrary*
OrvaneCreateStyleEditorLibraryFor(const Orvane::HostDescription* host, char* reason, quint32 reasonSize)
{
    try {
        const QString against = TranslatedReasonAgainst(*host);
        if (against.isEmpty())
            return NewLibrary(host->contract);
        Orvane::WriteReason(against, reason, reasonSize);
    } catch (...) {
        if (reason && reasonSize > 0)
            qstrncpy(reason, "there is not enough memory", reasonSize);
    }
    return nullptr;
}

Q_DECL_EXPORT Orvane::IStyleEditorLibrary* OrvaneCreateStyleEditorLibrary()
{
    return NewLibrary(Orvane::UntoldContract);
}

} // extern "C"
