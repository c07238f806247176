// SPDX-License-Identifier: MIT
#include "hostkit/schemes/SchemeFile.h"

#include "hostkit/HostKitTest.h"
#include "hostkit/common/HostErrors.h"
#include "support/FileSizeLimit.h"
#include "support/ProcessorTime.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <sys/stat.h>

namespace Orvane::Testing {
namespace {

class SchemeFiles : public testing::Test
{
protected:
    const ProcessorTime m_time{std::chrono::seconds(20)};

    SchemeFiles() { m_scheme.name = QStringLiteral("Night"); }

    QString Path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

    QString WriteText(const char* name, const QByteArray& content) const
    {
        QFile file(Path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }

    static QByteArray ContentOf(const QString& path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    // The same whether it is read at once or layer by layer.
    static int ErrorIn(const QString& path)
    {
        const auto visit = [](const SchemeDocument::Layer&, double) {};
        const auto read = [&] { SchemeFile::Reader(path).ForEachLayer(visit); };
        EXPECT_EQ(DescriptionOf(read), DescriptionOf([&] { SchemeFile::Read(path); }));
        return ErrorOf(read);
    }
    // Too large to be read at once, with a line per layer.
    void AddManyLayers()
    {
        SchemeDocument::Layer layer;
        layer.identity.name = QString(1000, u'n');
        m_scheme.layers.assign(2000, layer);
    }

    QTemporaryDir m_folder;
    SchemeDocument m_scheme;
};

TEST_F(SchemeFiles, AreReadAsTheyWereWritten)
{
    SchemeFile::Write(Path("night.json"), m_scheme);
    EXPECT_EQ(SchemeFile::Read(Path("night.json")).name, QStringLiteral("Night"));
}

TEST_F(SchemeFiles, ReplaceAFileOfTheirName)
{
    WriteText("night.json", QByteArray(10000, 'x'));
    SchemeFile::Write(Path("night.json"), m_scheme);
    EXPECT_EQ(ContentOf(Path("night.json")), m_scheme.ToJson());
}

TEST_F(SchemeFiles, MayBeginWithAByteOrderMark)
{
    const QString path = WriteText("night.json", "\xEF\xBB\xBF" + m_scheme.ToJson());
    EXPECT_EQ(SchemeFile::Read(path).name, QStringLiteral("Night"));
}

TEST_F(SchemeFiles, ThatAreMissingOrFoldersOrDamagedOrTooNewAreRefusedByName)
{
    const QByteArray newer = m_scheme.ToJson().replace("\"version\": 1", "\"version\": 99");
    for (const QString& path :
         {Path("gone.json"), m_folder.path(), WriteText("text.json", "a shopping list"),
          WriteText("newer.json", newer), WriteText("empty.json", "")}) {
        EXPECT_EQ(ErrorIn(path), int(HostError::SchemeFileUnreadable)) << qPrintable(path);
        const QString name = path.section(u'/', -1);
        EXPECT_TRUE(DescriptionOf([&] { SchemeFile::Read(path); }).contains(name)) << qPrintable(path);
    }
}

TEST_F(SchemeFiles, OfAnySizeAreReadLayerByLayerAsOftenAsIsWanted)
{
    for (const bool isLarge : {false, true}) {
        if (isLarge)
            AddManyLayers();
        SchemeFile::Write(Path("night.json"), m_scheme);
        SchemeFile::Reader file(Path("night.json"));
        EXPECT_EQ(file.Name(), m_scheme.name);
        for (int round = 0; round < 2; ++round) {
            int position = 0;
            file.ForEachLayer([&](const SchemeDocument::Layer& layer, double done) {
                EXPECT_EQ(layer.identity.id, position++);
                EXPECT_EQ(layer.identity.name.size(), 1000);
                EXPECT_GE(done, 0);
                EXPECT_LE(done, 1);
            });
            EXPECT_EQ(position, int(m_scheme.layers.size()));
        }
    }
}

TEST_F(SchemeFiles, ThatAreLargeAndDamagedFarBehindAreRefusedByName)
{
    AddManyLayers();
    const QByteArray content = m_scheme.ToJson();
    for (const QByteArray& damaged :
         {content.chopped(1000), content.chopped(4) + "]", content.chopped(4) + ", 7\n]}\n",
          content + "more"})
        EXPECT_EQ(ErrorIn(WriteText("night.json", damaged)), int(HostError::SchemeFileUnreadable));
}

TEST_F(SchemeFiles, ThatArePipesAreNotWaitedFor)
{
    ASSERT_EQ(mkfifo(Path("pipe.json").toUtf8().constData(), 0600), 0);
    EXPECT_EQ(ErrorIn(Path("pipe.json")), int(HostError::SchemeFileUnreadable));
    EXPECT_TRUE(DescriptionOf([&] { SchemeFile::Read(Path("pipe.json")); }).contains("pipe.json"));
}

TEST_F(SchemeFiles, ThatAreHugeAreRefusedUnread)
{
    QFile file(Path("huge.json"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(file.resize(SchemeFile::LargestFile + 1)); // a sparse file, which needs no disk space
    EXPECT_EQ(ErrorIn(file.fileName()), int(HostError::SchemeFileUnreadable));
    EXPECT_TRUE(
        DescriptionOf([&] { SchemeFile::Read(file.fileName()); }).contains(QStringLiteral("too large")));
}

TEST_F(SchemeFiles, AreWrittenWholeOrNotAtAll)
{
    const QString path = WriteText("night.json", "kept");
    m_scheme.layers.emplace_back();
    m_scheme.layers[0].values[0] = QStringLiteral("no number");
    EXPECT_EQ(ErrorOf([&] { SchemeFile::Write(path, m_scheme); }), int(HostError::SchemeValueUnknown));
    EXPECT_EQ(ContentOf(path), QByteArray("kept"));
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files), QStringList{QStringLiteral("night.json")});
}

TEST_F(SchemeFiles, WithoutRoomLeaveTheOldFile)
{
    const QString path = WriteText("night.json", "kept");
    const qint64 size = m_scheme.ToJson().size();
    for (qint64 room = 0; room < size; room += size / 7 + 1) {
        const FileSizeLimit limit(room);
        EXPECT_EQ(ErrorOf([&] { SchemeFile::Write(path, m_scheme); }), int(HostError::SchemeFileUnwritable))
            << room;
        EXPECT_EQ(ContentOf(path), QByteArray("kept")) << room;
    }
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files), QStringList{QStringLiteral("night.json")});
    const FileSizeLimit limit(size);
    SchemeFile::Write(path, m_scheme);
    EXPECT_EQ(ContentOf(path), m_scheme.ToJson());
}

TEST_F(SchemeFiles, ThatCannotBeWrittenAreNamed)
{
    const QString path = m_folder.filePath(QStringLiteral("no folder/night.json"));
    EXPECT_EQ(ErrorOf([&] { SchemeFile::Write(path, m_scheme); }), int(HostError::SchemeFileUnwritable));
    EXPECT_TRUE(
        DescriptionOf([&] { SchemeFile::Write(path, m_scheme); }).contains(QStringLiteral("night.json")));
}

} // namespace
} // namespace Orvane::Testing
