// SPDX-License-Identifier: MIT
#include "hostkit/StyleEditorPlugin.h"

#include "hostkit/HostKitTest.h"
#include "hosts/MemoryHost.h"

#include <OrvaneShellLib/HostDescription.h>
#include <OrvaneShellLib/IStyleEditorLibrary.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace Orvane::Testing {
namespace {

const QString Setting = QStringLiteral("library");

QString FakeFile(const char* name)
{
    return QStringLiteral(FAKE_PLUGIN_FOLDER "/") + QLatin1String(name);
}

int LoadError(const QString& pathOrName)
{
    return ErrorOf([&] { StyleEditorPlugin plugin(pathOrName); });
}

QString LoadComplaint(const QString& pathOrName)
{
    return DescriptionOf([&] { StyleEditorPlugin plugin(pathOrName); });
}

TEST(StyleEditorPlugin, LoadsAComponentOfItsOwnContract)
{
    MemoryHost host;
    StyleEditorPlugin plugin(FakeFile("fake_plugin_same"));
    EXPECT_EQ(plugin.Version().major, CurrentContract.major);
    EXPECT_FALSE(plugin.FileName().isEmpty());
    plugin.Library().Initialise(&host);
    EXPECT_EQ(host.settings[Setting], QStringLiteral("initialised"));
}

TEST(StyleEditorPlugin, DestroysTheLibraryAndLeavesItsTextsReadable)
{
    MemoryHost host;
    {
        StyleEditorPlugin plugin(FakeFile("fake_plugin_same"));
        plugin.Library().Initialise(&host);
    }
    EXPECT_EQ(host.settings[Setting], QStringLiteral("destroyed"));
}

TEST(StyleEditorPlugin, LoadsAComponentOfAHigherMinorVersion)
{
    StyleEditorPlugin plugin(FakeFile("fake_plugin_newer_minor"));
    EXPECT_EQ(plugin.Version().minor, CurrentContract.minor + 1);
}

TEST(StyleEditorPlugin, RefusesAnotherMajorVersionWithBothVersionsInTheText)
{
    const QString path = FakeFile("fake_plugin_other_major");
    EXPECT_EQ(LoadError(path), int(ErrorNumber::PluginFailure));
    EXPECT_TRUE(LoadComplaint(path).contains(
        QStringLiteral("%1.%2").arg(CurrentContract.major).arg(CurrentContract.minor)));
    EXPECT_TRUE(LoadComplaint(path).contains(QStringLiteral("%1.0").arg(CurrentContract.major + 1)));
}

TEST(StyleEditorPlugin, RefusesAComponentOfTheOtherQtWithBothVersionsInTheText)
{
    const QString path = FakeFile("fake_plugin_other_qt");
    EXPECT_EQ(LoadError(path), int(ErrorNumber::PluginFailure));
    EXPECT_TRUE(LoadComplaint(path).contains(QStringLiteral("built with Qt %1, this program with Qt %2")
                                                 .arg(11 - QT_VERSION_MAJOR)
                                                 .arg(QT_VERSION_MAJOR)));
}

TEST(StyleEditorPlugin, TellsTheComponentItsContractItsQtAndItsStandardLibrary)
{
    MemoryHost host;
    StyleEditorPlugin plugin(FakeFile("fake_plugin_newer_factory"));
    plugin.Library().Initialise(&host);
    const QVersionNumber qt = QLibraryInfo::version();
    EXPECT_EQ(
        host.settings[QStringLiteral("host")],
        QStringLiteral("%1.%2 %3.%4 %5")
            .arg(CurrentContract.major)
            .arg(CurrentContract.minor)
            .arg(qt.majorVersion())
            .arg(qt.minorVersion())
            .arg(QLatin1String(CompilerAbi())));
}

TEST(StyleEditorPlugin, UsesTheOldFactoryOfAComponentThatHasNoOther)
{
    MemoryHost host;
    StyleEditorPlugin plugin(FakeFile("fake_plugin_same"));
    plugin.Library().Initialise(&host);
    EXPECT_EQ(host.settings[QStringLiteral("host")], QString());
}

TEST(StyleEditorPlugin, TellsWhyTheComponentRefuses)
{
    const QString path = FakeFile("fake_plugin_refusing");
    EXPECT_EQ(LoadError(path), int(ErrorNumber::PluginFailure));
    EXPECT_TRUE(LoadComplaint(path).contains(QStringLiteral("cannot be used: it is Sunday.")));
}

TEST(StyleEditorPlugin, RefusesAComponentOfAnotherStandardLibraryWithBothInTheText)
{
    const QString path = FakeFile("fake_plugin_other_compiler");
    EXPECT_EQ(LoadError(path), int(ErrorNumber::PluginFailure));
    EXPECT_TRUE(LoadComplaint(path).contains(QStringLiteral("\"home made\"")));
    EXPECT_TRUE(LoadComplaint(path).contains(QLatin1String(CompilerAbi())));
}

TEST(StyleEditorPlugin, RefusesALibraryThatIsNoComponent)
{
    const QString path = FakeFile("fake_plugin_foreign");
    EXPECT_EQ(LoadError(path), int(ErrorNumber::PluginFailure));
    EXPECT_TRUE(LoadComplaint(path).contains(QLatin1String(ContractVersionSymbol)));
}

TEST(StyleEditorPlugin, RefusesAComponentWithoutAnEntryObject)
{
    EXPECT_EQ(LoadError(FakeFile("fake_plugin_empty")), int(ErrorNumber::PluginFailure));
}

TEST(StyleEditorPlugin, NamesTheFileThatIsMissing)
{
    const QString path = FakeFile("no_such_plugin");
    EXPECT_EQ(LoadError(path), int(ErrorNumber::PluginFailure));
    EXPECT_TRUE(LoadComplaint(path).contains(path));
}

TEST(StyleEditorPlugin, NamesTheComponentThatIsInNoneOfTheFolders)
{
    EXPECT_EQ(LoadError(QStringLiteral("NoSuchComponent")), int(ErrorNumber::PluginFailure));
    EXPECT_TRUE(LoadComplaint(QStringLiteral("NoSuchComponent")).contains(QStringLiteral("NoSuchComponent")));
}

TEST(StyleEditorPlugin, NamesAllFoldersThatItLookedIn)
{
    const QString complaint = LoadComplaint(QStringLiteral("NoSuchComponent"));
    for (const QString& folder : StyleEditorPlugin::SearchFolders())
        EXPECT_TRUE(complaint.contains(QDir::cleanPath(folder))) << qPrintable(folder);
}

TEST(StyleEditorPlugin, SaysWhatIsWrongWithAFoundFileNotWhereItWasNotFound)
{
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("libBrokenComponent.so")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("not a library");
    file.close();
    QCoreApplication::addLibraryPath(folder.path());
    const QString complaint = LoadComplaint(QStringLiteral("BrokenComponent"));
    QCoreApplication::removeLibraryPath(folder.path());
    EXPECT_TRUE(complaint.contains(file.fileName())) << qPrintable(complaint);
    EXPECT_FALSE(complaint.contains(QCoreApplication::applicationDirPath())) << qPrintable(complaint);
}

TEST(StyleEditorPlugin, LooksAtLastWhereTheSystemInstallsIt)
{
    QTemporaryDir folder;
    QDir(folder.path()).mkpath(QStringLiteral("lib/orvane"));
    QFile file(folder.filePath(QStringLiteral("lib/orvane/libInstalledComponent.so")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("not a library");
    file.close();
    const QByteArray before = qgetenv("XDG_DATA_DIRS");
    qputenv("XDG_DATA_DIRS", folder.filePath(QStringLiteral("share")).toLocal8Bit());
    const QString complaint = LoadComplaint(QStringLiteral("InstalledComponent"));
    before.isEmpty() ? qunsetenv("XDG_DATA_DIRS") : qputenv("XDG_DATA_DIRS", before);
    EXPECT_TRUE(complaint.contains(file.fileName())) << qPrintable(complaint);
}

TEST(StyleEditorPlugin, RefusesAFileThatIsNoLibrary)
{
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("libbroken.so")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("not a library");
    file.close();
    EXPECT_EQ(LoadError(file.fileName()), int(ErrorNumber::PluginFailure));
}

TEST(StyleEditorPlugin, LooksBesideTheProgramFirstAndThenInTheLibraryFolders)
{
    const QDir program(QCoreApplication::applicationDirPath());
    const QStringList folders = StyleEditorPlugin::SearchFolders();
    ASSERT_GE(folders.size(), 3);
    EXPECT_EQ(QDir(folders[0]), program);
    EXPECT_EQ(
        QDir::cleanPath(folders[1]), QDir::cleanPath(program.absoluteFilePath(QStringLiteral("../lib"))));
}

TEST(StyleEditorPlugin, FindsAPlainNameInTheLibraryPaths)
{
    QCoreApplication::addLibraryPath(QStringLiteral(FAKE_PLUGIN_FOLDER));
    EXPECT_EQ(LoadError(QStringLiteral("fake_plugin_same")), 0);
    QCoreApplication::removeLibraryPath(QStringLiteral(FAKE_PLUGIN_FOLDER));
}

} // namespace
} // namespace Orvane::Testing
