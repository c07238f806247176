// SPDX-License-Identifier: MIT
#include "hostkit/StyleEditorPlugin.h"

#include <OrvaneShellLib/IStyleEditorLibrary.h>
#include <OrvaneShellLib/RunTimeError.h>

#include <QDir>
#include <QFileInfo>

namespace Orvane {

namespace {

bool IsPath(const QString& pathOrName)
{
    return pathOrName.contains(u'/') || pathOrName.contains(u'\\');
}

} // namespace

StyleEditorPlugin::StyleEditorPlugin(const QString& pathOrName)
{
    // The host may still use literal texts and widget types of the component after it is destroyed.
    m_file.setLoadHints(QLibrary::PreventUnloadHint);
    Load(pathOrName);
    CheckContract();
    CheckQt();
    CreateLibrary();
}

StyleEditorPlugin::~StyleEditorPlugin() = default;

QStringList StyleEditorPlugin::SearchFolders()
{
    const QDir program(QCoreApplication::applicationDirPath());
    QStringList folders{
        program.path(), program.absoluteFilePath(QStringLiteral("../lib")),
        program.absoluteFilePath(QStringLiteral("../lib/orvane"))};
    return folders + QCoreApplication::libraryPaths();
}

void StyleEditorPlugin::Load(const QString& pathOrName)
{
    QStringList candidates{pathOrName};
    if (!IsPath(pathOrName)) {
        candidates.clear();
        for (const QString& folder : SearchFolders())
            candidates << folder + u'/' + pathOrName;
    }
    QString reason;
    for (const QString& candidate : candidates) {
        m_file.setFileName(candidate);
        if (m_file.load())
            return;
        // Reports the error for a file that exists, if there is one.
        if (reason.isEmpty() || QFileInfo::exists(m_file.fileName()))
            reason = m_file.errorString();
    }
    m_file.setFileName(pathOrName);
    Refuse(reason);
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

void StyleEditorPlugin::CreateLibrary()
{
    const auto create = reinterpret_cast<CreateLibraryFunction>(Resolve(CreateLibrarySymbol));
    m_library.reset(create());
    if (m_library)
        return;
    Refuse(tr("it made no entry object"));
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
