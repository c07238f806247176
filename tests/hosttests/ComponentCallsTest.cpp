// SPDX-License-Identifier: MIT
#include "hosttests/ComponentCalls.h"

#include "component/model/LayerCode.h"
#include "component/model/LayerCursors.h"
#include "component/model/LayerStyle.h"
#include "component/model/LayerStyleApplying.h"
#include "component/model/LayerStyleLoading.h"
#include "hosts/MemoryHost.h"

#include <gmock/gmock.h>

namespace Orvane::Testing {

namespace {

namespace Kit = HostTests::ComponentCalls;

/// The tests for hosts make the same calls as the component, in the same order.
class ComponentCalls : public testing::Test
{
protected:
    ComponentCalls()
    {
        for (MemoryHost* host : {&m_component, &m_kit}) {
            host->AddLayer({.id = 1, .name = "Roads", .code = 4});
            host->AddLayer({.id = 2, .name = "Rivers", .code = 5, .visible = false});
            host->AddGroup({.id = 3, .name = "Both", .members = {1, 2}});
        }
    }

    void ExpectSameCalls()
    {
        EXPECT_EQ(m_kit.Log().Trace(), m_component.Log().Trace());
        EXPECT_FALSE(m_kit.Log().Trace().isEmpty());
        QStringList kit = m_kit.Log().Of(CallKind::Read);
        QStringList component = m_component.Log().Of(CallKind::Read);
        kit.sort();
        component.sort();
        EXPECT_EQ(kit, component) << "columns that are read";
    }

    // Everything that is stored, written again.
    static StyleEdits AllOf(const LayerStyle& style)
    {
        StyleEdits edits{style, QuickMode::Backdrop, [] { return Value(qint32(0)); }};
        return edits;
    }

    MemoryHost m_component;
    MemoryHost m_kit;
};

// The values of MemoryHost's ordinary layer, as the component writes them.
Kit::ColumnValues OrdinaryEdits()
{
    return {
        {"OverrideMode", qint16(1)},
        {"Visible", true},
        {"Selectable", true},
        {"locked", false},
        {"Hitable", true},
        {"SnapRequired", false},
        {"Enquirable", true},
        {"Color", qint32(0)},
        {"FillForeColor", qint32(0xFFFFFF)},
        {"FillBackColor", qint32(0xC0C0C0)},
        {"OutlineStyle", qint32(0)},
        {"FillStyle", qint32(0)},
        {"LineThickness", qint32(-1)},
        {"MinVisScale", qint32(0)},
        {"MaxVisScale", qint32(256)},
        {"Priority", qint32(100)},
        {"Style", qint32(0)}};
}

} // namespace

TEST_F(ComponentCalls, ReadALayer)
{
    LayerStyle style;
    LoadLayerStyle(m_component, 1, style);
    Kit::LoadLayer(m_kit, 1);
    ExpectSameCalls();
}

TEST_F(ComponentCalls, ReadAGroup)
{
    LayerStyle style;
    LoadGroupStyle(m_component, 3, style);
    Kit::LoadGroup(m_kit, 3);
    QStringList reading = m_component.Log().Trace();
    // The component looks at the first layer once more.
    const QStringList again = reading.mid(reading.indexOf(QStringLiteral("Seek(=, 1)")), 3);
    EXPECT_EQ(reading.count(QStringLiteral("Seek(=, 1)")), 2);
    reading.removeOne(QStringLiteral("Seek(=, 1)"));
    for (const QString& call : again.mid(1))
        reading.removeOne(call);
    EXPECT_EQ(m_kit.Log().Trace(), reading);
}

TEST_F(ComponentCalls, WriteALayer)
{
    LayerStyle style;
    LoadLayerStyle(m_component, 1, style);
    m_component.ClearLog();
    ApplyLayerStyle(m_component, 1, AllOf(style));
    static_cast<IStyleEditorClient&>(m_component).RedrawMap();
    Kit::ApplyToLayer(m_kit, 1, OrdinaryEdits());
    ExpectSameCalls();
}

TEST_F(ComponentCalls, WriteAGroup)
{
    LayerStyle style;
    LoadLayerStyle(m_component, 1, style);
    m_component.ClearLog();
    ApplyGroupStyle(m_component, 3, AllOf(style));
    static_cast<IStyleEditorClient&>(m_component).RedrawMap();
    Kit::ApplyToGroup(m_kit, 3, OrdinaryEdits());
    ExpectSameCalls();
}

TEST_F(ComponentCalls, StoreACode)
{
    Orvane::SetLayerCode(m_component, 2, QStringLiteral("17"));
    Kit::SetCode(m_kit, 2, 17);
    ExpectSameCalls();
    EXPECT_EQ(m_kit.Log().LastWritten(QStringLiteral("Code")).Kind(), ValueKind::Double);
}

TEST_F(ComponentCalls, StoreThatAGroupIsExpanded)
{
    StoreGroupExpanded(m_component, 3, true);
    Kit::SetExpanded(m_kit, 3, true);
    ExpectSameCalls();
}

} // namespace Orvane::Testing
