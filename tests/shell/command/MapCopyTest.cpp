// SPDX-License-Identifier: MIT
#include "shell/command/MapCopy.h"

#include "shell/command/CommandFixture.h"
#include "support/FileSizeLimit.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QDir>

namespace Orvane {

using namespace Testing;

namespace {

class MapCopyTest : public CommandFixture
{
protected:
    static QString ErrorOfCopying(const QString& map)
    {
        try {
            const MapCopy copy(map);
        } catch (const RunTimeError& error) {
            return error.Description();
        }
        return {};
    }
};

} // namespace

TEST_F(MapCopyTest, TheCopyStandsForTheMapAndChangesStayInIt)
{
    const QString map = MakeMap("map.orvane");
    const QByteArray before = Content(map);
    {
        const MapCopy copy(map);
        EXPECT_EQ(copy.Document().Path(), map);
        EXPECT_EQ(copy.Document().Sources().size(), 1u);
        copy.Document().AddGroup("Group", true);
    }
    EXPECT_EQ(Content(map), before);
}

TEST_F(MapCopyTest, WithoutRoomTheFolderForTemporaryFilesIsNamedButNoTemporaryFile)
{
    const QString map = MakeMap("map.orvane");
    const FileSizeLimit limit(40000); // enough to read the map
    const QString text = ErrorOfCopying(map);
    EXPECT_TRUE(text.contains("\"map.orvane\"")) << text.toStdString();
    EXPECT_TRUE(text.contains('"' + QDir::tempPath() + '"')) << text.toStdString();
    EXPECT_FALSE(text.contains("copy.orvane")) << text.toStdString();
}

TEST_F(MapCopyTest, AMapThatIsMissingIsNamed)
{
    EXPECT_TRUE(ErrorOfCopying(m_folder.Path("none.orvane")).contains(m_folder.Path("none.orvane")));
}

} // namespace Orvane
