// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/StandardClient.h"
#include "hostkit/StandardShellServices.h"
#include "hosttests/HostTests.h"
#include "store/ILayerStore.h"

#include <QTemporaryDir>

namespace Orvane::Testing {

using HostTests::Ability;
using HostTests::HostContents;

/// The standard client, whose user confirms each deletion.
class ConfirmingClient : public StandardClient
{
    using StandardClient::StandardClient;

    bool ConfirmDeletion(const LayerDeletion&) override { return true; }
};

/// The standard host over a layer store in memory.
class StoreHost : public HostTests::IHostUnderTest
{
public:
    explicit StoreHost(const HostContents& contents);

    IStyleEditorClient& Client() override { return m_client; }

protected:
    explicit StoreHost(std::unique_ptr<ILayerStore> store);

    QString Path(const QString& name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder; // of the settings
    std::unique_ptr<ILayerStore> m_store;
    StandardShellServices m_services;
    ConfirmingClient m_client;
};

/// A folder that exists before the members of the class that derives from it.
struct MapFolder {
    QTemporaryDir folder;

    QString MapPath() const { return folder.filePath(QStringLiteral("map.ovl")); }
    /// Makes a file with these rows, and returns its path.
    QString MakeMap(const HostContents& contents) const;
};

/// The standard host over a file.
class FileHost : private MapFolder, public StoreHost
{
public:
    explicit FileHost(const HostContents& contents);

    QString WhyNot(Ability) const override { return {}; }
    std::unique_ptr<HostTests::IHostUnderTest> OpenAgain() override;

private:
    explicit FileHost(const QString& path);

    QString m_path;
};

/// The standard host over a file that it may not write.
class ReadOnlyHost : private MapFolder, public StoreHost
{
public:
    explicit ReadOnlyHost(const HostContents& contents);

    QString WhyNot(Ability ability) const override;
};

} // namespace Orvane::Testing
