// SPDX-License-Identifier: MIT
#pragma once

namespace Orvane {

class IStyleFilter;

/// One layer control dialog, as the host sees it. Implemented by the component, which owns it; the pointer is
/// good until IStyleEditorClient::EditorClosed names its form. The same object also implements
/// IStyleEditorForm and is a QWidget; dynamic_cast leads from one to another.
///
/// All calls are made on the user-interface thread. A call passes on unchanged what the host's own members
/// raise.
class IStyleEditor
{
public:
    virtual ~IStyleEditor() = default;
    IStyleEditor(const IStyleEditor&) = delete;
    IStyleEditor& operator=(const IStyleEditor&) = delete;

    /// Hands over the filter of the flat list; nullptr shows every layer. Not owned. The list is read anew
    /// when it is next looked at.
    void StyleFilter(const IStyleFilter* filter) { IStyleEditor_StyleFilter(filter); }

    /// True while the dialog's window is shown.
    bool Visible() const { return IStyleEditor_Visible(); }

    /// true shows the dialog with its stored view state, through IStyleEditorClient::ShowEditor; false closes
    /// it: the person is asked about edits that were not applied, and then the editor ends, so that this
    /// pointer is good no longer. When applying fails it stays open, and the error is raised. Asking for the
    /// state it is in does nothing.
    void Visible(bool visible) { IStyleEditor_Visible(visible); }

    /// Drops edits that were not applied and reads the groups anew. The flat list and the panel stay.
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
