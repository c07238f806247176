// SPDX-License-Identifier: MIT
#include "component/model/LayerCode.h"
#include "component/model/LayerStyleApplying.h"
#include "component/model/LayerStyleLoading.h"
#include "component/model/LayerTreeReader.h"
#include "hosts/MemoryHost.h"
#include "memory/MemorySweep.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <gmock/gmock.h>

namespace Orvane::Testing {

namespace {

using Act = std::function<void()>;

/// What the component's model does with a host's database. The host's log of calls counts as the host's.
class ModelWithoutMemory : public testing::TestWithParam<MissingMemory>
{
protected:
    void Sweep(const Act& act)
    {
        SweepMemory(
            *m_fault,
            {.prepare =
                 [&] {
                     MakeHost();
                     return act;
                 },
             .goOn = [this] { m_host->SetLayerColumn(2, "Priority", qint32(77)); },
             .state =
                 [this] {
                     const std::string state = State();
                     m_host.reset();
                     return state;
                 }});
    }

    static StyleEdits Edits()
    {
        StyleEdits edits;
        edits.style.lsSet(Slot::Visible, false);
        edits.style.lsSet(Slot::LineColour, qint32(0x0000FF));
        edits.style.lsSet(Slot::MinVisScale, qint32(6));
        edits.quickMode = QuickMode::Backdrop;
        return edits;
    }

    /// What a record holds, as text.
    static std::string TextOf(const LayerStyle& style)
    {
        std::string text;
        for (qint16 slot = 0; slot < LayerStyle::SlotCount; ++slot)
            text += style.lsIsNull(slot) ? "-," : ToText(style.lsGet(slot)).toStdString() + ',';
        return text;
    }

    std::unique_ptr<MemoryHost> m_host;
    std::string m_read; // what a command has read, once it has read all

private:
    void MakeHost()
    {
        m_read.clear();
        m_host = std::make_unique<MemoryHost>();
        for (const qint32 id : {1, 2, 3})
            m_host->AddLayer({.id = id, .name = QStringLiteral("A layer with a long name %1").arg(id)});
        m_host->AddGroup({.id = 5, .name = QStringLiteral("Group"), .members = {1, 2}});
    }

    std::string State()
    {
        std::string state = m_read;
        for (const qint32 id : {1, 2, 3}) {
            for (const char* column : {"Visible", "Color", "MinVisScale", "OverrideMode", "Code", "Priority"})
                state += '/' + ToText(m_host->LayerColumn(id, column)).toStdString();
        }
        return state;
    }

    std::unique_ptr<IFault> m_fault = MakeFault(GetParam());
};

} // namespace

TEST_P(ModelWithoutMemory, ALayerIsWrittenWholeOrNotAtAll)
{
    Sweep([this, edits = Edits()]() mutable {
        edits.seen = LoadLayerStyle(*m_host, 1, edits.asRead).seen;
        EXPECT_EQ(ApplyLayerStyle(*m_host, 1, edits).layers, 1);
    });
}

TEST_P(ModelWithoutMemory, AGroupIsWrittenWholeOrNotAtAll)
{
    Sweep([this, edits = Edits()]() mutable {
        edits.seen = LoadGroupStyle(*m_host, 5, edits.asRead).seen;
        EXPECT_EQ(ApplyGroupStyle(*m_host, 5, edits).layers, 2);
    });
}

TEST_P(ModelWithoutMemory, ACodeIsWrittenOrNot)
{
    Sweep([this, code = QStringLiteral("17")] { SetLayerCode(*m_host, 1, code); });
}

TEST_P(ModelWithoutMemory, ALayerIsReadWholeOrTheRecordStaysAsItWas)
{
    Sweep([this] {
        LayerStyle style;
        const ReadingResult result = LoadLayerStyle(*m_host, 1, style);
        const bool isFaulty = result.fault.has_value(); // a missing value would be shown as a bad one
        m_read = TextOf(style) + (isFaulty ? "faulty" : "");
    });
}

TEST_P(ModelWithoutMemory, AGroupIsReadWholeOrTheRecordStaysAsItWas)
{
    Sweep([this] {
        LayerStyle style;
        const ReadingResult result = LoadGroupStyle(*m_host, 5, style);
        const bool isFaulty = result.fault.has_value();
        m_read = TextOf(style) + (isFaulty ? "faulty" : "");
    });
}

TEST_P(ModelWithoutMemory, TheTreeIsReadWholeOrNotAtAll)
{
    Sweep([this, texts = TreeTexts{QStringLiteral("not found"), QStringLiteral("no name")}] {
        std::string lines;
        const TreeReading reading = LoadLayerTree(*m_host, std::nullopt, texts);
        for (const GroupEntry& group : reading.groups) {
            lines += group.text.toStdString() + (group.faulty ? "!" : "");
            for (const LayerEntry& layer : group.layers)
                lines += layer.text.toStdString() + (layer.faulty ? "!" : "");
        }
        m_read = lines;
    });
}

TEST_P(ModelWithoutMemory, TheListIsReadWholeOrNotAtAll)
{
    Sweep([this] {
        std::string lines;
        for (const LayerEntry& layer : ReloadLayerList(*m_host, nullptr).layers)
            lines += layer.text.toStdString() + (layer.faulty ? "!" : "");
        m_read = lines;
    });
}

INSTANTIATE_TEST_SUITE_P(WhateverFails, ModelWithoutMemory, AllKindsOfMissingMemory(), NameOfKind);

} // namespace Orvane::Testing
