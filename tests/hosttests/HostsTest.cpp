// SPDX-License-Identifier: MIT
// Every host of this house, as a host author would test it.
#include "hostkit/tracing/CallTrace.h"
#include "hostkit/tracing/TracingClient.h"
#include "hosts/MemoryHost.h"
#include "hosttests/StoreHost.h"

#include <OrvaneShellLib/ForwardingClient.h>
#include <OrvaneShellLib/ForwardingDatabase.h>
#include <OrvaneShellLib/ForwardingRecordset.h>
#include <OrvaneShellLib/ForwardingShellServices.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QBuffer>
#include <QWidget>

namespace Orvane::Testing {

namespace {

LayerSpec SpecOf(const HostTests::ContentsLayer& layer)
{
    LayerSpec spec;
    spec.id = ToInt32(layer.Get("LayerID"));
    spec.code = layer.Get("Code");
    return spec;
}

/// The tests' own host, whose schemes are names without values.
class MemoryHostUnderTest : public HostTests::IHostUnderTest
{
public:
    explicit MemoryHostUnderTest(const HostContents& contents)
    {
        for (const HostTests::ContentsLayer& layer : contents.layers) {
            m_host.AddLayer(SpecOf(layer));
            for (const LayerColumn& column : LayerColumns)
                m_host.SetLayerColumn(ToInt32(layer.Get("LayerID")), column.name, layer.Get(column.name));
        }
        for (const HostTests::ContentsGroup& group : contents.groups) {
            m_host.AddGroup({group.id, {}, group.groupOrdering, group.pseudo, group.expanded});
            m_host.SetGroupColumn(group.id, "Name", group.name);
        }
        for (const HostTests::ContentsMember& member : contents.members)
            m_host.AddMember(member.groupID, member.layerID, member.ordering);
        m_host.OnShowEditor = [](QWidget* form) { form->show(); };
        m_host.OnEditorClosed = [](QWidget* form) { form->hide(); };
    }

    IStyleEditorClient& Client() override { return m_host; }

    QString WhyNot(Ability ability) const override
    {
        const bool hasNot = ability == Ability::Schemes || ability == Ability::SchemeValues;
        return hasNot ? QStringLiteral("its schemes are only names") : IHostUnderTest::WhyNot(ability);
    }

private:
    MemoryHost m_host;
};

/// The standard host behind wrappers of everything.
class WrappedHost : public StoreHost
{
public:
    explicit WrappedHost(const HostContents& contents) : StoreHost(contents), m_wrapper(StoreHost::Client())
    {
    }

    IStyleEditorClient& Client() override { return m_wrapper; }

private:
    class PassingDatabase : public ForwardingDatabase
    {
        using ForwardingDatabase::ForwardingDatabase;
        std::unique_ptr<IRecordset> ILayerDatabase_OpenRecordset(const QString& source) override
        {
            return std::make_unique<ForwardingRecordset>(Wrapped().OpenRecordset(source));
        }
    };

    class PassingClient : public ForwardingClient
    {
    public:
        explicit PassingClient(IStyleEditorClient& client)
            : ForwardingClient(client), m_database(client.GetDatabase()),
              m_services(*client.GetShellServices())
        {
        }

    private:
        ILayerDatabase& IStyleEditorClient_Database() override { return m_database; }
        IShellServices* IStyleEditorClient_GetShellServices() override { return &m_services; }
        std::unique_ptr<IRecordset> IStyleEditorClient_LayersTable() override
        {
            return std::make_unique<ForwardingRecordset>(Wrapped().LayersTable());
        }

        PassingDatabase m_database;
        ForwardingShellServices m_services;
    };

    PassingClient m_wrapper;
};

/// The standard host with a trace.
class TracedHost : public StoreHost
{
public:
    explicit TracedHost(const HostContents& contents)
        : StoreHost(contents), m_trace(m_lines), m_traced(StoreHost::Client(), m_trace)
    {
        m_lines.open(QIODevice::WriteOnly);
    }

    IStyleEditorClient& Client() override { return m_traced; }

private:
    QBuffer m_lines;
    CallTrace m_trace;
    TracingClient m_traced;
};

ORVANE_HOST_TESTS(StoreHost)
ORVANE_HOST_TESTS(FileHost)
ORVANE_HOST_TESTS(ReadOnlyHost)
ORVANE_HOST_TESTS(MemoryHostUnderTest)
ORVANE_HOST_TESTS(WrappedHost)
ORVANE_HOST_TESTS(TracedHost)

[[maybe_unused]] const bool withDialog = [] {
    const auto component = QStringLiteral(ORVANE_COMPONENT);
    HostTests::RunWithDialog("StoreHost", HostTests::HostMaker<StoreHost>(), component);
    HostTests::RunWithDialog("ReadOnlyHost", HostTests::HostMaker<ReadOnlyHost>(), component);
    HostTests::RunWithDialog("MemoryHost", HostTests::HostMaker<MemoryHostUnderTest>(), component);
    HostTests::RunWithDialog("TracedHost", HostTests::HostMaker<TracedHost>(), component);
    return true;
}();

} // namespace

} // namespace Orvane::Testing
