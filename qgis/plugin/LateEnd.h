// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>

#include <memory>

namespace Orvane {

class ProjectSession;
class SchemeCommands;
class StyleEditorPlugin;

/// Ends a session, and the component and the commands that use it, when no function of theirs is running any
/// more: somebody may switch the plug-in off while a question waits for the user, or from within an apply.
/// The component ends at once if the session is idle. Deletes itself; ends both at the latest with the
/// application.
class LateEnd : public QObject
{
    Q_OBJECT

public:
    /// What ends. Only the session must be there.
    struct Parts {
        std::unique_ptr<ProjectSession> session;
        std::unique_ptr<SchemeCommands> schemes;
        std::unique_ptr<StyleEditorPlugin> component; ///< ended first: it ends its editors through the client

        Parts();
        ~Parts();
    };

    /// The session reads and tells nothing from now on.
    static void Of(std::unique_ptr<Parts> parts);

    ~LateEnd() override;

private:
    explicit LateEnd(std::unique_ptr<Parts> parts);
    void EndIfIdle();

    QTimer m_again;
    std::unique_ptr<Parts> m_parts;
};

} // namespace Orvane
