// SPDX-License-Identifier: MIT
// The tests for hosts, run on the other examples' hosts: one with a map file, one with a dock, one with a
// vector, and one with optional parts of its own.
#include "../dock_host/DockHost.h"
#include "../optional_parts/OptionalParts.h"
#include "../vector_host/LinesWindow.h"

#include <orvane/hosttests/HostTests.h>
#include <orvane/hosttests/StoreContents.h>

#include <QApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Orvane;

namespace {

/// A client that needs no user: it deletes layers unasked.
template <typename Client> class Unattended : public Client
{
public:
    using Client::Client;

private:
    bool ConfirmDeletion(const LayerDeletion&) override { return true; }
};

class FileHost : public HostTests::IHostUnderTest
{
public:
    explicit FileHost(const HostTests::HostContents& contents) : m_path(m_folder.filePath("map.ovl"))
    {
        LayerStores::Make(m_path, IfExists::Refuse, [&contents](std::unique_ptr<ILayerStore> store) {
            HostTests::FillStore(*store, contents);
        });
        m_store = LayerStores::Open(m_path);
        m_client = std::make_unique<Unattended<StandardClient>>(*m_store, m_services);
    }

    IStyleEditorClient& Client() override { return *m_client; }

private:
    QTemporaryDir m_folder;
    QString m_path;
    std::unique_ptr<ILayerStore> m_store;
    StandardShellServices m_services;
    std::unique_ptr<StandardClient> m_client;
};

class DockHost : public HostTests::IHostUnderTest
{
public:
    explicit DockHost(const HostTests::HostContents& contents)
    {
        HostTests::FillStore(*m_store, contents);
        m_client.SetMainWindow(&m_window);
        m_window.show();
    }

    IStyleEditorClient& Client() override { return m_client; }

private:
    std::unique_ptr<ILayerStore> m_store = LayerStores::CreateInMemory();
    StandardShellServices m_services;
    MapWindow m_window;
    Unattended<DockClient> m_client{*m_store, m_services, m_window};
};

/// The window reads its lines from the rows. It asks before a layer is deleted.
class VectorHost : public HostTests::IHostUnderTest
{
public:
    explicit VectorHost(const HostTests::HostContents& contents)
    {
        HostTests::FillStore(dynamic_cast<ILayerStore&>(Client().GetDatabase()), contents);
        m_window.show();
    }

    IStyleEditorClient& Client() override { return m_window.Client(); }

    QString WhyNot(HostTests::Ability ability) const override
    {
        const bool asks = ability == HostTests::Ability::DeletingLayers;
        return asks ? "the user is asked first" : IHostUnderTest::WhyNot(ability);
    }

private:
    LinesWindow m_window{{}};
};

class HostWithOptionalParts : public HostTests::IHostUnderTest
{
public:
    explicit HostWithOptionalParts(const HostTests::HostContents& contents)
    {
        HostTests::FillStore(*m_store, contents);
    }

    IStyleEditorClient& Client() override { return m_parts; }

private:
    /// Deletes layers unasked.
    class AgreeingParts : public OptionalParts
    {
        using OptionalParts::OptionalParts;
        bool Agrees(const QString&) override { return true; }
    };

    std::unique_ptr<ILayerStore> m_store = LayerStores::CreateInMemory();
    StandardShellServices m_services;
    Unattended<StandardClient> m_client{*m_store, m_services};
    QLabel m_map{"25000"};
    AgreeingParts m_parts{m_client, *m_store, m_map};
};

ORVANE_HOST_TESTS(FileHost)
ORVANE_HOST_TESTS(DockHost)
ORVANE_HOST_TESTS(VectorHost)
ORVANE_HOST_TESTS(HostWithOptionalParts)

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    testing::InitGoogleTest(&argc, argv);
    HostTests::RunWithDialog("FileHost", HostTests::HostMaker<FileHost>());
    HostTests::RunWithDialog("DockHost", HostTests::HostMaker<DockHost>());
    HostTests::RunWithDialog("VectorHost", HostTests::HostMaker<VectorHost>());
    HostTests::RunWithDialog("HostWithOptionalParts", HostTests::HostMaker<HostWithOptionalParts>());
    return RUN_ALL_TESTS();
}
