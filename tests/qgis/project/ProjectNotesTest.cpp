// SPDX-License-Identifier: MIT
#include "qgis/project/ProjectNotes.h"

#include "hostkit/common/MapNotes.h"
#include "qgis/project/ProjectFixture.h"
#include "support/Errors.h"

#include <OrvaneShellLib/RunTimeError.h>

namespace Orvane::Testing {

namespace {

const QString Key = QStringLiteral("LayerControl.ShownOnly");
const QString Text = QStringLiteral(u"normal=1..5;it's \"\u9053\"");

class ProjectNotesTest : public ProjectFixture
{
protected:
    QString Entry() { return project.readEntry("Orvane", "LayerNotes"); }

    ProjectNotes kept{project, *store};
};

TEST_F(ProjectNotesTest, ComeBackWithTheSavedProject)
{
    const QTemporaryDir folder;
    MapNotes::Write(*store, Key, Text);
    kept.Write();
    ASSERT_TRUE(project.write(folder.filePath("map.qgz")));
    QgsProject opened;
    ASSERT_TRUE(opened.read(folder.filePath("map.qgz")));
    const auto second = LayerStores::CreateInMemory();
    ProjectNotes(opened, *second).Read();
    EXPECT_EQ(MapNotes::Read(*second, Key), Text);
    EXPECT_FALSE(opened.isDirty());
}

TEST_F(ProjectNotesTest, OnlyAChangeMarksTheProject)
{
    kept.Write();
    EXPECT_FALSE(project.isDirty());
    MapNotes::Write(*store, Key, Text);
    kept.Write();
    EXPECT_TRUE(project.isDirty());
    project.setDirty(false);
    kept.Write();
    EXPECT_FALSE(project.isDirty());
}

TEST_F(ProjectNotesTest, AProjectWithoutNotesHasNoEntry)
{
    MapNotes::Write(*store, Key, Text);
    kept.Write();
    EXPECT_FALSE(Entry().isEmpty());
    MapNotes::Write(*store, Key, {});
    kept.Write();
    EXPECT_TRUE(Entry().isEmpty());
    EXPECT_FALSE(project.entryList("Orvane", {}).contains("LayerNotes"));
}

TEST_F(ProjectNotesTest, NotesOfAnotherProjectAreGone)
{
    MapNotes::Write(*store, Key, Text);
    kept.Read();
    EXPECT_EQ(MapNotes::Read(*store, Key), QString());
}

TEST_F(ProjectNotesTest, AnEntryThatCannotBeReadHasNoneAndStaysUntilThereAreOthers)
{
    project.writeEntry("Orvane", "LayerNotes", QString("{\"LayerControl"));
    kept.Read();
    EXPECT_TRUE(MapNotes::ReadAll(*store).isEmpty());
    kept.Write();
    EXPECT_EQ(Entry(), "{\"LayerControl");
    MapNotes::Write(*store, Key, Text);
    kept.Write();
    kept.Read();
    EXPECT_EQ(MapNotes::Read(*store, Key), Text);
}

TEST_F(ProjectNotesTest, AreTakenBackWithLayersThatCannotBeWritten)
{
    MapNotes::Write(*store, Key, Text);
    EXPECT_EQ(
        ErrorOf([&] { kept.WriteAfter([] { throw RunTimeError(4711, QStringLiteral("refused")); }); }), 4711);
    EXPECT_EQ(MapNotes::Read(*store, Key), QString());
    EXPECT_TRUE(Entry().isEmpty());
}

} // namespace

} // namespace Orvane::Testing
