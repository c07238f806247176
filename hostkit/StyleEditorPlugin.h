// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/OrvaneShellLib/PluginContract.h>

#include <QCoreApplication>
#include <QLibrary>
#include <QString>
#include <QStringList>

#include <memory>

namespace Orvane {

class IStyleEditorLibrary;

/// The component, loaded at run time.
///
///     StyleEditorPlugin plugin;             // finds, checks and loads the component
///     plugin.Library().Initialise(&client);
///     plugin.Library().NewStyleEditor("Main")->Visible(true);
///
/// Only the component's versions are read until they are known to be compatible. Destroying this object
/// destroys the library object with all its editors, so the client must still be alive. The component's code
/// stays loaded until the process ends, because texts that it returned may point into it.
class StyleEditorPlugin
{
    Q_DECLARE_TR_FUNCTIONS(StyleEditorPlugin)

public:
    /// The component's file name without prefix and suffix; it ends in the major version of Qt.
    static constexpr char DefaultName[] = "OrvaneLayerControlQt" QT_STRINGIFY(QT_VERSION_MAJOR);

    /// Loads the component from a file, or by its plain name from the first of SearchFolders that has it.
    /// Raises PluginFailure when it cannot be loaded, is not a style editor component, has a different
    /// contract version, or was built with another major version of Qt or a standard library that does not
    /// fit, when the component itself refuses this program, and when there is no QApplication yet. If none of
    /// the folders has it, the description names them all.
    explicit StyleEditorPlugin(const QString& pathOrName = QString::fromLatin1(DefaultName));
    ~StyleEditorPlugin();
    Q_DISABLE_COPY_MOVE(StyleEditorPlugin)

    /// The component's entry object; owned by this object.
    IStyleEditorLibrary& Library() const { return *m_library; }
    /// The component's contract version.
    ContractVersion Version() const { return m_version; }
    /// The file that was loaded.
    QString FileName() const { return m_file.fileName(); }

    /// Where a plain name is looked for, in this order: the program's folder, ../lib and ../lib/orvane
    /// relative to it; Qt's library paths; then lib/orvane beside the system's folders for data, where
    /// packages put the component, such as /usr/lib/orvane.
    static QStringList SearchFolders();

    /// The file of the component that was loaded last in this process; empty before the first.
    static QString LoadedFile();

private:
    void Load(const QString& pathOrName);
    void LoadFile(const QString& path);
    void LoadByName(const QString& name);
    void CheckContract();
    void CheckQt();
    void CheckCompiler();
    void CreateLibrary();
    IStyleEditorLibrary* NewLibrary(QString& reason);
    QFunctionPointer Resolve(const char* symbol);
    [[noreturn]] void Refuse(const QString& reason) const;

    QLibrary m_file;
    ContractVersion m_version;
    std::unique_ptr<IStyleEditorLibrary> m_library;
};

} // namespace Orvane
