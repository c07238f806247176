// SPDX-License-Identifier: MIT
#include "hostkit/common/SettingsStore.h"

#include "hosts/ValueMatchers.h"

#include <QCoreApplication>
#include <QTemporaryDir>

namespace Orvane {
namespace {

class Settings : public testing::Test
{
protected:
    QString Path() const { return m_folder.filePath(QStringLiteral("settings.ini")); }

private:
    QTemporaryDir m_folder;
};

TEST_F(Settings, KeepTextsBeyondTheObject)
{
    SettingsStore(Path()).Write(
        QStringLiteral("DrawStyleEditor::Main"), QStringLiteral("9000:7000:LAYERS:EXPANDED"));
    EXPECT_EQ(
        SettingsStore(Path()).Read(QStringLiteral("DrawStyleEditor::Main")),
        QStringLiteral("9000:7000:LAYERS:EXPANDED"));
}

TEST_F(Settings, AreEmptyForAKeyThatWasNeverWritten)
{
    EXPECT_TRUE(SettingsStore(Path()).Read(QStringLiteral("DrawStyleEditor::Other")).isEmpty());
}

TEST_F(Settings, TakeAnyKeyAndTellKeysApart)
{
    const QStringList keys{
        QStringLiteral("a/b"),
        QStringLiteral("a\\b"),
        QStringLiteral("a"),
        QStringLiteral("A"),
        QString(),
        QString::fromUtf8("Größe 🗺 = [x]")};
    for (const QString& key : keys)
        SettingsStore(Path()).Write(key, QStringLiteral("value of ") + key);
    for (const QString& key : keys)
        EXPECT_EQ(SettingsStore(Path()).Read(key), QStringLiteral("value of ") + key);
}

TEST_F(Settings, KeepAnyText)
{
    for (const char* text : {"", " ", "a, b; c", "\"quoted\"", "line\nbreak", "@Invalid()", "100%"}) {
        SettingsStore(Path()).Write(QStringLiteral("key"), QString::fromUtf8(text));
        EXPECT_EQ(SettingsStore(Path()).Read(QStringLiteral("key")), QString::fromUtf8(text));
    }
}

} // namespace
} // namespace Orvane
