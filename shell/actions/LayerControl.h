// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace Orvane {

class CallTrace;
class MapSession;
class IStyleEditor;
class IStyleEditorClient;
class IStyleEditorLibrary;
class IStyleFilter;
class StyleEditorPlugin;
class TracingLibrary;

/// The layer control of the shell: loads the component at its first use, and shows its editors: the editor of
/// all layers, which has the ID "Main", and others with their own IDs and filters.
///
/// Raises the errors of loading the component, and those that the component passes on.
class LayerControl
{
public:
    /// trace: not owned; nullptr for none.
    explicit LayerControl(CallTrace* trace = nullptr);
    /// Ends the editors without applying, and unloads the component. The client must still be alive.
    ~LayerControl();
    LayerControl(const LayerControl&) = delete;
    LayerControl& operator=(const LayerControl&) = delete;

    /// The next editor works with the client of this map; not owned. Call only while no editor is open.
    void Use(MapSession& session);

    /// Opens the editor on all layers; does nothing when it is shown.
    void Show();
    /// Opens an editor with this ID, whose flat list shows the layers that the filter accepts; an editor that
    /// is shown gets the new filter and keeps its edits.
    void Show(const QString& editorID, std::shared_ptr<const IStyleFilter> filter);
    /// Closes all editors, each of which asks about edits that were not applied. False when one stays open.
    bool Close();
    /// Closes one editor in the same way; true also when there is none with this ID.
    bool Close(const QString& editorID);
    /// True when an editor is shown.
    bool IsShown() const;
    bool IsShown(const QString& editorID) const;

    /// Closes all editors, calls act and opens the same editors again, also when act raises; the active
    /// window stays active. False, without calling act, when an editor stays open.
    bool WithEditorsClosed(const std::function<void()>& act);
    /// The same, for what may open another map: only the editor of all layers opens again.
    bool WithAnotherMap(const std::function<void()>& act);

private:
    struct Entry {
        QString editorID;
        std::shared_ptr<const IStyleFilter> filter;
    };

    IStyleEditor* Editor(const QString& editorID) const;
    IStyleEditor* NewEditor(const Entry& entry);
    std::vector<Entry> Shown() const;
    bool Reopening(const std::vector<Entry>& entries, const std::function<void()>& act);
    void Load();

    CallTrace* m_trace;
    IStyleEditorClient* m_client = nullptr;
    IStyleEditorClient* m_initialisedWith = nullptr;
    std::vector<Entry> m_entries; // of all editors that were ever opened; filters outlive the editors
    std::unique_ptr<StyleEditorPlugin> m_plugin;
    std::unique_ptr<TracingLibrary> m_tracing;
    IStyleEditorLibrary* m_library = nullptr; // one of the two above
};

} // namespace Orvane
