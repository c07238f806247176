// SPDX-License-Identifier: MIT
#pragma once

#include "qgis/project/MapThemes.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <optional>

class QWidget;

namespace Orvane {

class ProjectSession;

/// The commands that exchange layer schemes with map themes and files. Each asks the user first, also before
/// anything of the same name is replaced.
///
/// Errors of the store are passed on.
class SchemeCommands : public QObject
{
    Q_OBJECT

public:
    /// Neither is owned; both outlive this object.
    SchemeCommands(QWidget& window, ProjectSession& session);

    /// Makes a scheme of each map theme that the user chooses, as one step.
    void ImportThemes();
    /// Makes a map theme of the current scheme, as a step.
    void ExportTheme();
    /// Makes a scheme of a scheme file, as a step.
    void ImportFile();
    /// Writes the current scheme to a file.
    void ExportFile();

Q_SIGNALS:
    /// A command has done its work. message: for the user.
    void Done(const QString& message);

private:
    // Those that may be imported; nothing if the user cancelled.
    std::optional<QStringList> AllowedThemes(const QStringList& chosen);
    bool MayReplaceScheme(const QString& question, const QString& name);

    QWidget& m_window;
    ProjectSession& m_session;
    MapThemes m_themes;
};

} // namespace Orvane
