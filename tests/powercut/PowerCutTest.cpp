// SPDX-License-Identifier: MIT
#include "store/failing_files/PowerCut.h"

#include "store/ChangeRecorder.h"
#include "store/sqlite/StoreTest.h"

#include <OrvaneShellLib/Transaction.h>

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cstdio>
#include <gmock/gmock.h>
#include <ostream>

namespace Orvane::Testing {

namespace {

using testing::AnyOf;

constexpr int MostChanges = 5000; // of the disk, more than any scenario here makes

const char* NameOf(Loss loss)
{
    constexpr std::array names = {"Everything", "Nothing", "SomeWrites", "TornWrites"};
    return names[size_t(loss)];
}

// How often each moment is tried, with other sectors lost each time; "./dev powercut" sets it.
unsigned SeedCount()
{
    return unsigned(std::max(1, qEnvironmentVariableIntValue("ORVANE_POWER_CUTS")));
}

/// Steps on a map; the power is cut at each change of the disk in turn. After each cut the map opens, is
/// sound, holds what each finished step stored, and of the unfinished one all or nothing; a next edit is
/// stored.
class PowerCuts : public StoreTest, public testing::WithParamInterface<Loss>
{
protected:
    using Step = std::function<void()>;

    PowerCuts()
    {
        const auto database = SqliteLayerDatabase::Open(m_original);
        AddGroup(*database, 5, QStringLiteral("Group"), 0);
        AddMember(*database, 5, 1, 0);
        AddMember(*database, 5, 2, 1);
    }

    void Sweep(const std::vector<Step>& steps)
    {
        const std::vector<std::string> states = StatesOf(steps);
        const bool isRandom = GetParam() == Loss::SomeWrites || GetParam() == Loss::TornWrites;
        int cuts = 0;
        for (int number = 1; number < MostChanges; ++number) {
            for (unsigned seed = 0; seed < (isRandom ? SeedCount() : 1); ++seed) {
                if (!CutOnce(steps, states, number, seed)) {
                    EXPECT_GT(number, 1) << "nothing ever failed";
                    std::printf("%d power cuts, at each of %d changes of the disk\n", cuts, number - 1);
                    return;
                }
                ++cuts;
                if (HasFailure())
                    return;
            }
        }
        FAIL() << "it never ran to its end";
    }

    void Open() { m_database = SqliteLayerDatabase::Open(m_run); }
    void Close() { m_database.reset(); }

    void SetCode(qint32 id, qint32 code)
    {
        const auto layer = SeekLayer(*m_database, id);
        layer->Edit();
        layer->SetField("Code", code);
        layer->Update();
    }

    // Larger than a page, so that pages are taken and given back.
    void ChangeMuch(qint32 id)
    {
        Transaction transaction(*m_database);
        SetCode(id, 7);
        AddLayer(*m_database, 100 + id, QString(6000, u'x'));
        m_database->Execute(QStringLiteral("DELETE FROM Layers WHERE LayerID = ?1"), {id});
        AddGroup(*m_database, 100 + id, QStringLiteral("More"), 1);
        transaction.Commit();
    }

    const QString m_original = MadeFile(QStringLiteral("original.ovl"), 20);
    const QString m_run = PathOf(QStringLiteral("run.ovl"));
    const QString m_copy = PathOf(QStringLiteral("copy.ovl"));
    std::unique_ptr<SqliteLayerDatabase> m_database;
    std::optional<Changeset> m_undo;

private:
    // What is stored at first, and after each step.
    std::vector<std::string> StatesOf(const std::vector<Step>& steps)
    {
        MakeFresh();
        std::vector<std::string> states{State()};
        states.reserve(steps.size() + 1);
        for (const Step& step : steps) {
            step();
            states.push_back(State());
        }
        Close();
        return states;
    }

    // False if the power was cut only after the last step.
    bool
    CutOnce(const std::vector<Step>& steps, const std::vector<std::string>& states, int number, unsigned seed)
    {
        MakeFresh();
        PowerCut power(QFileInfo(m_run).path());
        power.CutAt(number);
        size_t finished = 0;
        const int error = ErrorOf([&] {
            for (const Step& step : steps) {
                step();
                if (power.IsOff()) // who has no power reports nothing
                    return;
                ++finished;
            }
        });
        Close();
        const bool wasCut = power.IsOff();
        power.Return(GetParam(), seed * MostChanges + unsigned(number));
        const testing::ScopedTrace trace(
            __FILE__, __LINE__,
            "change " + std::to_string(number) + ", " + power.LastChange() + ", seed "
                + std::to_string(seed));
        ExpectKept(states, finished, error);
        return wasCut;
    }

    void ExpectKept(const std::vector<std::string>& states, size_t finished, int error)
    {
        EXPECT_EQ(DescriptionOf([this] { Open(); }), QString());
        if (!m_database)
            return;
        const std::string& unfinished = states[std::min(finished + 1, states.size() - 1)];
        EXPECT_THAT(State(), AnyOf(states[finished], unfinished)) << finished << " steps, error " << error;
        m_database->Execute(QStringLiteral("UPDATE Layers SET Priority = 77 WHERE LayerID = 3"));
        Close();
        EXPECT_EQ(RawDatabase(m_run).Text("SELECT Priority FROM Layers WHERE LayerID = 3"), "77");
    }

    void MakeFresh()
    {
        m_undo.reset();
        for (const QString& name : FilesThere()) {
            if (name != QLatin1String("original.ovl"))
                QFile::remove(PathOf(name));
        }
        EXPECT_TRUE(QFile::copy(m_original, m_run));
    }

    // A copy that has its name and nothing else is none: the name is taken before the file is moved there.
    std::string State()
    {
        const bool isCopied = QFileInfo(m_copy).size() > 0;
        return Everything(m_run) + " copy: " + (isCopied ? Everything(m_copy) : "none");
    }

    static std::string Everything(const QString& path)
    {
        RawDatabase file(path);
        return file.Text(
                   "SELECT group_concat(LayerID || substr(Name, 1, 9) || length(Name) || Code) FROM Layers")
            + '/' + file.Text("SELECT group_concat(ID || Name) FROM LayerGroups") + '/'
            + file.Text("SELECT group_concat(GroupID || '-' || LayerID) FROM LayerGroupMembers") + '/'
            + file.Text("PRAGMA user_version") + '/' + file.Text("PRAGMA integrity_check");
    }
};

} // namespace

TEST_P(PowerCuts, FinishedEditsAreThereAndNothingHalf)
{
    Sweep(
        {[this] { Open(); }, [this] { SetCode(1, 5); }, [this] { ChangeMuch(2); }, [this] { SetCode(3, 6); },
         [this] { Close(); }, [this] { Open(); }, [this] { SetCode(1, 8); }, [this] { ChangeMuch(4); },
         [this] { Close(); }});
}

TEST_P(PowerCuts, AnUndoIsThereWholeOrNotAtAll)
{
    Sweep(
        {[this] { Open(); },
         [this] {
             const auto recorder = m_database->RecordChanges();
             ChangeMuch(1);
             m_undo = recorder->Changes().Inverted();
         },
         [this] { m_undo = m_database->Apply(*m_undo)->Inverted(); }, [this] { m_database->Apply(*m_undo); },
         [this] { Close(); }});
}

// The log is brought into the map while it is open, and is written again from its beginning.
TEST_P(PowerCuts, BringingTheLogIntoTheMapLosesNothing)
{
    const auto checkpoint = [this](const char* kind) {
        m_database->Execute(QStringLiteral("PRAGMA wal_checkpoint(%1)").arg(QLatin1String(kind)));
    };
    Sweep(
        {[this] { Open(); }, [this] { ChangeMuch(1); }, [=] { checkpoint("PASSIVE"); },
         [this] { ChangeMuch(2); }, [=] { checkpoint("RESTART"); }, [this] { ChangeMuch(4); },
         [=] { checkpoint("TRUNCATE"); }, [this] { ChangeMuch(6); }, [this] { Close(); }});
}

TEST_P(PowerCuts, ACopyIsThereWholeOrNotAtAllAndAnOldOneUntilThen)
{
    Sweep(
        {[this] { Open(); }, [this] { m_database->CopyToFile(m_copy); }, [this] { ChangeMuch(1); },
         [this] { m_database->CopyToFile(m_copy, IfExists::Replace); }, [this] { Close(); }});
}

TEST_P(PowerCuts, ANewMapIsThereWholeOrNotAtAll)
{
    Sweep({[this] { SqliteLayerDatabase::Make(m_copy, IfExists::Refuse); }});
}

TEST_P(PowerCuts, AMigrationHappensWholeOrNotAtAll)
{
    RawDatabase(m_original)
        .Run("DROP INDEX LayerNameIDX; DROP INDEX GroupOrderingIDX; DROP INDEX MemberOrderingIDX;"
             "DROP INDEX MemberLayerIDX; DROP TABLE sqlite_stat1; PRAGMA user_version = 1;"
             "PRAGMA journal_mode = DELETE");
    Sweep({[this] { Open(); }, [this] { SetCode(1, 5); }, [this] { Close(); }});
}

INSTANTIATE_TEST_SUITE_P(
    WhateverIsLost, PowerCuts,
    testing::Values(Loss::Everything, Loss::Nothing, Loss::SomeWrites, Loss::TornWrites),
    [](const testing::TestParamInfo<Loss>& info) { return std::string(NameOf(info.param)); });

} // namespace Orvane::Testing
