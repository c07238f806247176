// SPDX-License-Identifier: MIT
#pragma once

#include "component/common/StyleEditorWindow.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <vector>

namespace Orvane {

/// The open editors by ID, in the order of their creation. IDs are case-sensitive.
///
/// The registry owns the windows. A window that emits Unloaded is removed from the registry at once, so that
/// its ID is free again. It is deleted after its own code has returned. A window that the host destroys, by
/// destroying its parent, is removed in the same way.
class StyleEditorRegistry : public QObject
{
    Q_OBJECT

public:
    /// factory: creates the windows; never empty.
    explicit StyleEditorRegistry(StyleEditorFactory factory);
    /// Deletes all windows, also those that have already unloaded, so that no code of the component is needed
    /// later.
    ~StyleEditorRegistry() override;

    /// The editor with that ID, or nullptr.
    StyleEditorWindow* Find(const QString& editorID) const noexcept;

    /// Creates and registers a hidden editor. Raises 1234 when the ID is registered already.
    StyleEditorWindow& Create(const QString& editorID);

    /// Unloads every editor without applying, in the order of their creation. What the host raises meanwhile
    /// is dropped, and the editor is deleted.
    void UnloadAll() noexcept;

    /// Tells every editor that texts have changed; what they raise meanwhile is theirs to show.
    void ShowLanguage();

    /// The IDs of the open editors, in the order of their creation.
    QStringList EditorIDs() const;

private:
    struct Entry {
        QString editorID;
        StyleEditorWindow* window;
    };

    void Register(const QString& editorID, StyleEditorWindow* window);
    bool Forget(const QObject* window);
    void OnUnloaded(StyleEditorWindow* window);
    void UnloadOne(StyleEditorWindow* window) noexcept;

    StyleEditorFactory m_factory;
    std::vector<Entry> m_editors;
    std::vector<QPointer<StyleEditorWindow>> m_unloaded;
};

} // namespace Orvane
