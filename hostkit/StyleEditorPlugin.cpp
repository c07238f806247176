// SPDX-License-Identifier: MIT
#include "hostkit/StyleEditorPlugin.h"

#include <OrvaneShellLib/HostDescription.h>
#include <OrvaneShellLib/IStyleEditorLibrary.h>
#include <OrvaneShellLib/RunTimeError.h>

#include <QApplication>
#include <QDir>
#include <QStandardPaths>

#include <algorithm>

namespace Orvane {

namespace {

bool IsPath(const QString& pathOrName)
{
    return pathOrName.contains(u'/') || pathOrName.contains(u'\\');
}

// True if there is a file that QLibrary would load under that name, or would fail to load.
bool HasLibrary(const QString& folder, const QString& name)
{
    const QStringList files = QDir(folder).entryList(
        {name + QLatin1Char('*'), QLatin1String("lib") + name + QLatin1Char('*')}, QDir::Files);
    return std::any_of(files.begin(), files.end(), [&name](const QString& file) {
        const QString stem = file.section(QLatin1Char('.'), 0, 0);
        return (stem == name || stem == QLatin1String("lib") + name) && QLibrary::isLibrary(file);
    });
}

QString& LastLoadedFile()
{
    static QString file; // a component's code stays loaded until the process ends
    return file;
}

} // namespace

StyleEditorPlugin::StyleEditorPlugin(const QString& pathOrName)
{
    // The host may still use literal texts and widget types of the component after it is destroyed.
    m_file.setLoadHints(QLibrary::PreventUnloadHint);
    Load(pathOrName);
    CheckContract();
    CheckQt();
    CheckCompiler();
    CreateLibrary();
    LastLoadedFile() = m_file.fileName();
}

StyleEditorPlugin::~StyleEditorPlugin() = default;

QStringList StyleEditorPlugin::SearchFolders()
{
    const QDir program(QCoreApplication::applicationDirPath());
    QStringList folders{
        program.path(), program.absoluteFilePath(QStringLiteral("../lib")),
        program.absoluteFilePath(QStringLiteral("../lib/orvane"))};
    folders += QCoreApplication::libraryPaths();
    for (const QString& share : QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation))
        folders << QDir::cleanPath(share + QStringLiteral("/../lib/orvane"));
    return folders;
}

QString StyleEditorPlugin::LoadedFile()
{
    return LastLoadedFile();
}

void StyleEditorPlugin::Load(const QString& pathOrName)
{
    m_file.setFileName(pathOrName);
    // Without one, Qt ends the program at the first window.
    if (!qobject_cast<QApplication*>(QCoreApplication::instance()))
        Refuse(tr("the program must make a QApplication before it loads it"));
    if (IsPath(pathOrName))
        LoadFile(pathOrName);
    else
        LoadByName(pathOrName);
}

void StyleEditorPlugin::LoadFile(const QString& path)
{
    m_file.setFileName(path);
    if (!m_file.load())
        Refuse(m_file.errorString());
}

void StyleEditorPlugin::LoadByName(const QString& name)
{
    QStringList tried;
    QString reason;
    for (const QString& folder : SearchFolders()) {
        tried << QDir::toNativeSeparators(QDir::cleanPath(folder));
        if (!HasLibrary(folder, name))
            continue;
        m_file.setFileName(folder + QLatin1Char('/') + name);
        if (m_file.load())
            return;
        if (reason.isEmpty())
            reason = m_file.errorString();
    }
    m_file.setFileName(name);
    tried.removeDuplicates();
    Refuse(
        reason.isEmpty() ? tr("it is in none of these folders: %1").arg(tried.join(QLatin1String(", ")))
                         : reason);
}

void StyleEditorPlugin::CheckContract()
{
    const auto version = reinterpret_cast<ContractVersionFunction>(Resolve(ContractVersionSymbol));
    version(&m_version);
    if (m_version.major == CurrentContract.major)
        return;
    const QString spoken = QStringLiteral("%1.%2").arg(m_version.major).arg(m_version.minor);
    const QString wanted = QStringLiteral("%1.%2").arg(CurrentContract.major).arg(CurrentContract.minor);
    Refuse(tr("it uses version %1 of the interface, this program uses version %2").arg(spoken, wanted));
}

// Using widgets of two Qt versions in one process would crash it.
void StyleEditorPlugin::CheckQt()
{
    const auto qtMajor = reinterpret_cast<QtMajorFunction>(m_file.resolve(QtMajorSymbol));
    const qint32 major = qtMajor ? qtMajor() : 6;
    if (major != QT_VERSION_MAJOR)
        Refuse(tr("it was built with Qt %1, this program with Qt %2").arg(major).arg(QT_VERSION_MAJOR));
}

// Types of the standard library cross the border.
void StyleEditorPlugin::CheckCompiler()
{
    const auto abi = reinterpret_cast<CompilerAbiFunction>(m_file.resolve(CompilerAbiSymbol));
    const QLatin1String theirs(abi ? abi() : CompilerAbi());
    const QLatin1String ours(CompilerAbi());
    if (theirs != ours)
        Refuse(
            tr("it was built with the standard library \"%1\", this program with \"%2\"").arg(theirs, ours));
}

void StyleEditorPlugin::CreateLibrary()
{
    QString reason;
    m_library.reset(NewLibrary(reason));
    if (m_library)
        return;
    Refuse(reason.isEmpty() ? tr("it made no entry object") : reason);
}

IStyleEditorLibrary* StyleEditorPlugin::NewLibrary(QString& reason)
{
    const auto createFor = reinterpret_cast<CreateLibraryForFunction>(m_file.resolve(CreateLibraryForSymbol));
    if (!createFor)
        return reinterpret_cast<CreateLibraryFunction>(Resolve(CreateLibrarySymbol))();
    const HostDescription host = DescribeHost();
    char text[512] = {};
    IStyleEditorLibrary* library = createFor(&host, text, sizeof text);
    reason = QString::fromUtf8(text);
    return library;
}

QFunctionPointer StyleEditorPlugin::Resolve(const char* symbol)
{
    if (const QFunctionPointer function = m_file.resolve(symbol))
        return function;
    Refuse(tr("it is no style editor component (\"%1\" is missing)").arg(QLatin1String(symbol)));
}

void StyleEditorPlugin::Refuse(const QString& reason) const
{
    throw RunTimeError(
        ErrorNumber::PluginFailure,
        tr("The style editor component \"%1\" cannot be used: %2.").arg(m_file.fileName(), reason),
        QStringLiteral("StyleEditorPlugin"));
}

} // namespace Orvane
