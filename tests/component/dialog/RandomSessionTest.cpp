// SPDX-License-Identifier: MIT
#include "component/dialog/session/SessionDeeds.h"
#include "component/dialog/session/SessionFixture.h"

#include <OrvaneShellLib/IStyleEditorForm.h>

#include <QStackedWidget>

namespace Orvane::Testing {

namespace {

using namespace Paper;

constexpr int stepsOfASession = 700;
const QString fault = QStringLiteral("The host is out of order.");

/// A member that may fail, and the number of its latest call that fails.
struct Weakness {
    const char* member;
    int latestCall;
};

constexpr std::array weaknesses{
    Weakness{"Seek", 3},         Weakness{"SetField", 10},    Weakness{"Update", 3},
    Weakness{"Field", 60},       Weakness{"LayersTable", 4},  Weakness{"BeginLayerEdit", 3},
    Weakness{"LayerChanged", 3}, Weakness{"RedrawMap", 1},    Weakness{"BeginTrans", 2},
    Weakness{"CommitTrans", 2},  Weakness{"OpenRecordset", 3}};

class RandomSession : public SessionFixture, public testing::WithParamInterface<unsigned>
{
protected:
    RandomSession() : SessionFixture(GetParam()) { }

    void ActAndCheck(int step)
    {
        const Deed& deed = m_deeds.Next(dice);
        const testing::ScopedTrace trace(__FILE__, __LINE__, std::to_string(step) + ": " + deed.name);
        deed.act(*this);
        Check();
    }

    /// True when the failure occurred.
    bool ApplyWithAFailure(int step)
    {
        const Weakness& weakness = dice.OneOf(weaknesses);
        const testing::ScopedTrace trace(
            __FILE__, __LINE__, std::to_string(step) + ": apply and fail in " + weakness.member);
        client.Plan({weakness.member, 1 + dice.Below(weakness.latestCall), RunTimeError(10001, fault)});
        const Map before = map;
        const Panel edits = dialog.panel;
        Click("cmdApply");
        dialog.Apply();
        const bool hasFailed = client.HasFailed();
        if (hasFailed) {
            dialog.TakeBoxes();
            EXPECT_EQ(user.TakeBoxes(), QStringList(fault));
            CheckRows(before, *edits.node);
            CheckEdits(edits, dialog.panel);
        }
        StartAgain(hasFailed);
        Check();
        return hasFailed;
    }

private:
    // A group is stored completely or not at all; the code of a layer is stored after its other columns.
    void CheckRows(const Map& before, const Node& node)
    {
        const Map actual = ReadMap(host.PlainDatabase());
        Map withoutCode = map;
        const auto layer = withoutCode.layers.find(node.layerID);
        if (!node.isGroup && layer != withoutCode.layers.end())
            layer->second.columns[Code] = before.layers.at(node.layerID).columns[Code];
        EXPECT_TRUE(actual == before || actual == map || actual == withoutCode)
            << qPrintable(Differences(before, actual).join('\n'));
    }

    // All edits remain, or what is stored is shown, or nothing; never another node's values.
    void CheckEdits(const Panel& edits, const Panel& applied)
    {
        const bool isCovered = Find<QStackedWidget>("stkSettings").currentWidget() != &Find("scrSettings");
        dialog.isModified = CanApply();
        dialog.panel = dialog.isModified ? edits : isCovered ? Panel() : applied;
        CheckPanel();
    }

    DeedChoice m_deeds;
};

TEST_P(RandomSession, LeavesInTheDatabaseWhatTheUserDid)
{
    OpenEditor();
    for (int step = 0; step < stepsOfASession && !HasFailure(); ++step)
        ActAndCheck(step);
    EditorForm().UnloadWithoutApply();
    EXPECT_TRUE(Differences(map, ReadMap(host.PlainDatabase())).isEmpty());
}

TEST_P(RandomSession, KeepsRowsAndEditsWholeWhenTheHostFails)
{
    OpenEditor();
    int failures = 0;
    for (int step = 0; step < stepsOfASession && !HasFailure(); ++step) {
        if (dialog.isModified && dice.Chance(30))
            failures += ApplyWithAFailure(step);
        else
            ActAndCheck(step);
    }
    EXPECT_GT(failures, 5);
    EditorForm().UnloadWithoutApply();
}

// ORVANE_SEED tries another session than the usual ones.
std::vector<unsigned> Seeds()
{
    const int asked = qEnvironmentVariableIntValue("ORVANE_SEED");
    return asked > 0 ? std::vector<unsigned>{unsigned(asked)} : std::vector<unsigned>{5, 13, 37, 40};
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomSession, testing::ValuesIn(Seeds()));

} // namespace

} // namespace Orvane::Testing
