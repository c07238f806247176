// SPDX-License-Identifier: MIT
#include "hosttests/StoreHost.h"

#include "hosttests/StoreContents.h"
#include "store/opening/LayerStores.h"

namespace Orvane::Testing {

namespace {

StoreOptions Impatient()
{
    return {std::chrono::milliseconds(1), {}};
}

std::unique_ptr<ILayerStore> InMemory(const HostContents& contents)
{
    auto store = LayerStores::CreateInMemory();
    HostTests::FillStore(*store, contents);
    return store;
}

} // namespace

StoreHost::StoreHost(const HostContents& contents) : StoreHost(InMemory(contents))
{
}

StoreHost::StoreHost(std::unique_ptr<ILayerStore> store)
    : m_store(std::move(store)), m_client(*m_store, m_services)
{
    m_client.SetSettingsFile(Path(QStringLiteral("settings.ini")));
}

QString MapFolder::MakeMap(const HostContents& contents) const
{
    LayerStores::Make(MapPath(), IfExists::Refuse, [&](std::unique_ptr<ILayerStore> store) {
        HostTests::FillStore(*store, contents);
    });
    return MapPath();
}

FileHost::FileHost(const HostContents& contents)
    : StoreHost(LayerStores::Open(MakeMap(contents), OpenMode::ReadWrite, Impatient())), m_path(MapPath())
{
}

FileHost::FileHost(const QString& path)
    : StoreHost(LayerStores::Open(path, OpenMode::ReadWrite, Impatient())), m_path(path)
{
}

std::unique_ptr<HostTests::IHostUnderTest> FileHost::OpenAgain()
{
    return std::unique_ptr<HostTests::IHostUnderTest>(new FileHost(m_path));
}

ReadOnlyHost::ReadOnlyHost(const HostContents& contents)
    : StoreHost(LayerStores::Open(MakeMap(contents), OpenMode::ReadOnly))
{
}

QString ReadOnlyHost::WhyNot(Ability ability) const
{
    return ability == Ability::Writing ? QStringLiteral("the file is opened for reading only")
                                       : StoreHost::WhyNot(ability);
}

} // namespace Orvane::Testing
