// SPDX-License-Identifier: MIT
// A component without editors, with the versions that the build sets. It writes a setting of its client when
// it is created and when it is destroyed, and what the host told about itself.
#include <OrvaneShellLib/HostDescription.h>
#include <OrvaneShellLib/IStyleEditorClient.h>
#include <OrvaneShellLib/IStyleEditorLibrary.h>
#include <OrvaneShellLib/PluginContract.h>

namespace {

class FakeLibrary : public Orvane::IStyleEditorLibrary
{
public:
    explicit FakeLibrary(const QString& host) : m_host(host) { }

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
        m_client->WriteSetting(nullptr, QStringLiteral("host"), m_host);
    }

    Orvane::IStyleEditor* IStyleEditorLibrary_NewStyleEditor(const QString&) override { return nullptr; }

    QString m_host;
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

#ifdef FAKE_ABI
Q_DECL_EXPORT const char* OrvaneCompilerAbi()
{
    return FAKE_ABI;
}
#endif

#ifdef FAKE_REFUSAL
Q_DECL_EXPORT Orvane::IStyleEditorLibrary*
OrvaneCreateStyleEditorLibraryFor(const Orvane::HostDescription* host, char* reason, quint32 reasonSize)
{
    qstrncpy(reason, FAKE_REFUSAL, reasonSize);
    if (reason[0])
        return nullptr;
    return new FakeLibrary(QStringLiteral("%1.%2 %3.%4 %5")
                               .arg(host->contract.major)
                               .arg(host->contract.minor)
                               .arg(host->qtMajor)
                               .arg(host->qtMinor)
                               .arg(QLatin1String(host->compilerAbi)));
}
#endif

Q_DECL_EXPORT Orvane::IStyleEditorLibrary* OrvaneCreateStyleEditorLibrary()
{
    return FAKE_CREATES_LIBRARY ? new FakeLibrary(QString()) : nullptr;
}

} // extern "C"
