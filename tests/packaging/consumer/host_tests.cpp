// SPDX-License-Identifier: MIT
// A host author's tests.
#include <orvane/hostkit/StandardClient.h>
#include <orvane/hostkit/StandardShellServices.h>
#include <orvane/hostkit/StyleEditorPlugin.h>
#include <orvane/hosttests/HostTests.h>
#include <orvane/hosttests/StoreContents.h>
#include <orvane/store/ILayerStore.h>
#include <orvane/store/opening/LayerStores.h>

#include <QApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Orvane;

namespace {

class MyClient : public StandardClient
{
    using StandardClient::StandardClient;
    bool ConfirmDeletion(const LayerDeletion&) override { return true; }
};

class MyHost : public HostTests::IHostUnderTest
{
public:
    explicit MyHost(const HostTests::HostContents& contents)
    {
        HostTests::FillStore(*m_database, contents);
        m_client.SetSettingsFile(m_folder.filePath(QStringLiteral("settings.ini")));
    }

    IStyleEditorClient& Client() override { return m_client; }

private:
    QTemporaryDir m_folder;
    std::unique_ptr<ILayerStore> m_database = LayerStores::CreateInMemory();
    StandardShellServices m_services;
    MyClient m_client{*m_database, m_services};
};

ORVANE_HOST_TESTS(MyHost)

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    HostTests::RunWithDialog(
        "MyHost", HostTests::HostMaker<MyHost>(),
        QStringLiteral(PLUGIN_FOLDER "/") + QLatin1String(StyleEditorPlugin::DefaultName));
    return RUN_ALL_TESTS();
}
