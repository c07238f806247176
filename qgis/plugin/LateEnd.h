// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>

#include <memory>

namespace Orvane {

class ProjectSession;
class StyleEditorPlugin;

/// Ends a session, and the component that uses it, when no function of theirs is running any more: somebody
/// may switch the plug-in off while a question waits for the user, or from within an apply. The component
/// ends at once if the session is idle. Deletes itself; ends both at the latest with the application.
class LateEnd : public QObject
{
    Q_OBJECT

public:
    /// component: may be empty. The session reads and tells nothing from now on.
    static void Of(std::unique_ptr<ProjectSession> session, std::unique_ptr<StyleEditorPlugin> component);

    ~LateEnd() override;

private:
    LateEnd(std::unique_ptr<ProjectSession> session, std::unique_ptr<StyleEditorPlugin> component);
    void EndIfIdle();

    QTimer m_again;
    std::unique_ptr<ProjectSession> m_session;
    std::unique_ptr<StyleEditorPlugin> m_component; // ended first: it ends its editors through the client
};

} // namespace Orvane
