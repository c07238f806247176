// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/StyleEditorPlugin.h"
#include "hosttests/CheckRun.h"

#include <OrvaneShellLib/IStyleEditor.h>
#include <OrvaneShellLib/IStyleEditorForm.h>

#include <QObject>
#include <QStringList>

#include <memory>

class QTreeView;

namespace Orvane::HostTests {

/// The real dialog on the screen, and a user who closes each message box, which is a finding.
class DialogSession : public QObject
{
public:
    /// Shows the dialog on its flat list or on its groups. Neither is owned; both outlive this object.
    /// component: as for StyleEditorPlugin; empty for its default name.
    DialogSession(CheckRun& run, IStyleEditorClient& client, const QString& component, bool showsGroups);
    ~DialogSession() override;

    IStyleEditor& Editor() { return *m_editor; }
    IStyleEditorForm& Form() { return *m_form; }
    /// The names in a list, each after its group.
    QStringList Listed() const;
    /// Makes the node with that name current; notes a finding if there is none.
    void Choose(const QString& name);
    /// Clicks the box of a property.
    void Tick(const char* box);
    void Apply();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QTreeView& List() const;
    QWidget& Window() const;
    template <typename Child> Child* Find(QObject* parent, const char* name);

    CheckRun& m_run;
    bool m_showsGroups;
    StyleEditorPlugin m_plugin;
    IStyleEditor* m_editor = nullptr;
    IStyleEditorForm* m_form = nullptr;
};

} // namespace Orvane::HostTests
