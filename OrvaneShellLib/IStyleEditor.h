// SPDX-License-Identifier: MIT
#pragma once

namespace Orvane {

class IStyleFilter;

/// One layer control dialog, as the host sees it. Implemented by the component, which owns it; the pointer is
/// valid until IStyleEditorClient::EditorClosed is called for its form. The same object also implements
/// IStyleEditorForm and is a QWidget; use dynamic_cast to get from one to another.
///
/// All calls are made on the user-interface thread. Errors that the host's own members raise are passed on
/// unchanged.
class IStyleEditor
{
public:
    virtual ~IStyleEditor() = default;
    IStyleEditor(const IStyleEditor&) = delete;
    IStyleEditor& operator=(const IStyleEditor&) = delete;

    /// Sets the filter of the flat list; nullptr shows every layer. Not owned. The list is read again when it
    /// is next shown.
    void StyleFilter(const IStyleFilter* filter) { IStyleEditor_StyleFilter(filter); }

    /// True while the dialog's form is visible to the user; false also behind another tab of the host.
    bool Visible() const { return IStyleEditor_Visible(); }

    /// true shows the dialog with its stored view state, through IStyleEditorClient::ShowEditor; false closes
    /// it: the user is asked about edits that were not applied, and then the editor is destroyed, so this
    /// pointer is no longer valid. If applying fails, the dialog stays open and the error is raised. Setting
    /// the state that it already has does nothing. Within a widget of the host, a form that is open but not
    /// visible can be shown again, which keeps it as it is, and closed.
    void Visible(bool visible) { IStyleEditor_Visible(visible); }

    /// Discards edits that were not applied and reads the groups again. The flat list and the panel stay as
    /// they are.
    void RefreshGroups() { IStyleEditor_RefreshGroups(); }

protected:
    IStyleEditor() = default;

private:
    virtual void IStyleEditor_StyleFilter(const IStyleFilter* filter) = 0;
    virtual bool IStyleEditor_Visible() const = 0;
    virtual void IStyleEditor_Visible(bool visible) = 0;
    virtual void IStyleEditor_RefreshGroups() = 0;
};

} // namespace Orvane
