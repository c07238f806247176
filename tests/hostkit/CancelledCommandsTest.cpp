// SPDX-License-Identifier: MIT
#include "hostkit/Impatience.h"
#include "hostkit/schemes/SchemeExchange.h"
#include "hostkit/schemes/SchemeFile.h"
#include "hostkit/undo/LayerStepsFixture.h"

#include <OrvaneShellLib/Cancellation.h>

#include <QDir>
#include <QTemporaryDir>

namespace Orvane::Testing {

namespace {

constexpr int LayerCount = 300;

// A map whose commands take several looks, with two schemes and a step that can be undone.
class CancelledCommands : public Steps
{
protected:
    CancelledCommands()
    {
        for (qint32 layerID = 10; layerID < LayerCount; ++layerID)
            AddLayer(layerID, QStringLiteral("Layer %1").arg(layerID), layerID);
        Host().GetSchemeNames();
        ChangeColours();
        Host().CreateScheme(Night);
    }

    void ChangeColours() { Database().Execute(QStringLiteral("UPDATE Layers SET Color = Color + 1")); }

    QStringList State()
    {
        return Everything() << Host().GetSchemeNames() << Host().GetCurrentScheme() << History().UndoText()
                            << History().RedoText();
    }

    // Cancels the command at its first look, then at its second and so on, until it is done before that.
    void ExpectAllOrNothing(const std::function<void()>& command)
    {
        const QStringList before = State();
        for (int last = 0;; last += 1 + last / 3) {
            ASSERT_LT(last, 100000);
            if (CancelAt(last, command))
                break;
            ASSERT_EQ(State(), before) << last;
        }
    }

    QString Path(const QString& name) const { return m_folder.filePath(name); }
    QStringList Files() const { return QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden); }

private:
    // True when the command was done before that look.
    bool CancelAt(int last, const std::function<void()>& command)
    {
        const Impatience now;
        const AtEachLook cancel([last](QProgressDialog& dialog, int look) {
            if (look == last)
                PressCancel(dialog);
        });
        const int error = ErrorOf(command);
        EXPECT_TRUE(error == 0 || error == int(UserCancelled));
        EXPECT_TRUE(last > 0 || error != 0); // otherwise nothing was tried
        return error == 0;
    }

    QTemporaryDir m_folder;
};

TEST_F(CancelledCommands, LoadAllOfASchemeOrNothing)
{
    ExpectAllOrNothing([&] { Host().LoadScheme(Standard); });
    EXPECT_EQ(Host().GetCurrentScheme(), Standard);
    EXPECT_THAT(Get(10, "Color"), IsValue(0));
}

TEST_F(CancelledCommands, SaveAllOfASchemeOrNothing)
{
    ChangeColours();
    ExpectAllOrNothing([&] { Host().SaveScheme(Night); });
    EXPECT_FALSE(m_client.HasUnsavedSchemeChanges());
}

TEST_F(CancelledCommands, CreateAllOfASchemeOrNothing)
{
    ExpectAllOrNothing([&] { Host().CreateScheme(QStringLiteral("Dusk")); });
    EXPECT_EQ(Host().GetCurrentScheme(), QStringLiteral("Dusk"));
}

TEST_F(CancelledCommands, DeleteAllOfASchemeOrNothing)
{
    ExpectAllOrNothing([&] { Host().DeleteScheme(Night); });
    EXPECT_EQ(Host().GetSchemeNames(), QStringList{Standard});
}

TEST_F(CancelledCommands, UndoAllOrNothing)
{
    Host().LoadScheme(Standard);
    ExpectAllOrNothing([&] { History().Undo(); });
    EXPECT_EQ(Host().GetCurrentScheme(), Night);
}

TEST_F(CancelledCommands, RedoAllOrNothing)
{
    Host().LoadScheme(Standard);
    History().Undo();
    ExpectAllOrNothing([&] { History().Redo(); });
    EXPECT_EQ(Host().GetCurrentScheme(), Standard);
}

TEST_F(CancelledCommands, ImportAllOfASchemeOrNothing)
{
    SchemeDocument scheme = SchemeExchange::Export(Database(), Night);
    scheme.name = QStringLiteral("Dusk");
    ExpectAllOrNothing([&] { m_client.ImportScheme(scheme); });
    EXPECT_TRUE(Host().GetSchemeNames().contains(scheme.name));
}

TEST_F(CancelledCommands, ExportAllOfASchemeOrNoFile)
{
    ExpectAllOrNothing([&] {
        EXPECT_EQ(Files(), QStringList());
        m_client.ExportScheme(Night, Path("night.json"));
    });
    EXPECT_EQ(Files(), QStringList{"night.json"});
    EXPECT_EQ(
        SchemeFile::Read(Path("night.json")).layers.size(),
        SchemeExchange::Export(Database(), Night).layers.size());
}

TEST_F(CancelledCommands, ReadAllOfASchemeFileOrNothing)
{
    SchemeDocument scheme = SchemeExchange::Export(Database(), Night);
    const std::vector<SchemeDocument::Layer> some = scheme.layers;
    while (scheme.layers.size() < 5000) // more than a small file
        scheme.layers.insert(scheme.layers.end(), some.begin(), some.end());
    SchemeFile::Write(Path("night.json"), scheme);
    SchemeDocument read;
    ExpectAllOrNothing([&] { read = m_client.ReadSchemeFile(Path("night.json")); });
    EXPECT_EQ(read.layers.size(), scheme.layers.size());
}

TEST_F(CancelledCommands, ImportAllOfASchemeFileOrNothing)
{
    SchemeDocument scheme = SchemeExchange::Export(Database(), Night);
    scheme.name = QStringLiteral("Dusk");
    const std::vector<SchemeDocument::Layer> some = scheme.layers;
    while (scheme.layers.size() < 5000) // more than a small file
        scheme.layers.insert(scheme.layers.end(), some.begin(), some.end());
    SchemeFile::Write(Path("dusk.json"), scheme);
    std::optional<SchemeImport> import;
    ExpectAllOrNothing([&] { import = m_client.ImportSchemeFile(Path("dusk.json"), [](const QString&) { return true;
    });
});
ASSERT_TRUE(import);
EXPECT_EQ(import->matched, qsizetype(some.size()));
EXPECT_EQ(import->onlyInFile.size(), qsizetype(scheme.layers.size() - some.size()));
EXPECT_TRUE(Host().GetSchemeNames().contains(scheme.name));
}

TEST_F(CancelledCommands, ImportNoSchemeFileThatTheUserDoesNotWant)
{
    SchemeFile::Write(Path("night.json"), SchemeExchange::Export(Database(), Night));
    const QStringList before = State();
    QString asked;
    EXPECT_FALSE(m_client.ImportSchemeFile(Path("night.json"), [&](const QString& name) {
        asked = name;
        return false;
    }));
    EXPECT_EQ(asked, Night);
    EXPECT_EQ(State(), before);
}

TEST_F(CancelledCommands, SaveAllSchemesForNewMapsOrNone)
{
    m_client.SetStartupFile(Path("startup.orvane"));
    ExpectAllOrNothing([&] {
        EXPECT_EQ(Files(), QStringList());
        Host().SaveSchemesToStartup();
    });
    EXPECT_EQ(Files(), QStringList{"startup.orvane"});
}

} // namespace

} // namespace Orvane::Testing
