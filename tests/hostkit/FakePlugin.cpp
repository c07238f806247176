// SPDX-License-Identifier: MIT
// A component without editors, with the versions that the build sets. It writes a setting of its client when
// it is created and when it is destroyed.
#include <OrvaneShellLib/IStyleEditorClient.h>
#include <OrvaneShellLib/IStyleEditorLibrary.h>
#include <OrvaneShellLib/PluginContract.h>

namespace {

class FakeLibrary : public Orvane::IStyleEditorLibrary
{
public:
    ~FakeLibrary() override
    {
        if (m_client)
            m_client->WriteSetting(nullptr, QStringLiteral("library"), QStringLiteral("destroyed"));
    }

private:
    Orvane::IStyleEditor* IStyleEditorLibrary_GetStyleEditor(const QString&) const noexcept override
    {
        return nullptr;
    }

    void IStyleEditorLibrary_Initialise(Orvane::IStyleEditorClient* client) override
    {
        m_client = client;
        m_client->WriteSetting(nullptr, QStringLiteral("library"), QStringLiteral("initialised"));
    }

    Orvane::IStyleEditor* IStyleEditorLibrary_NewStyleEditor(const QString&) override { return nullptr; }

    Orvane::IStyleEditorClient* m_client = nullptr;
};

} // namespace

extern "C" {

Q_DECL_EXPORT void OrvaneContractVersion(Orvane::ContractVersion* version)
{
    *version = {FAKE_CONTRACT_MAJOR, FAKE_CONTRACT_MINOR};
}

#ifdef FAKE_QT_MAJOR
Q_DECL_EXPORT qint32 OrvaneQtMajor()
{
    return FAKE_QT_MAJOR;
}
#endif

Q_DECL_EXPORT Orvane::IStyleEditorLibrary* OrvaneCreateStyleEditorLibrary()
{
    return FAKE_CREATES_LIBRARY ? new FakeLibrary : nullptr;
}

} // extern "C"
