// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/SourceReader.h"

#include <QCoreApplication>
#include <QString>

#include <functional>
#include <memory>

class QWidget;

namespace Orvane {

class LayerControl;
class MapDocument;
struct MapAccess;
class MapSharing;
struct PlaceToSave;
class ServerActions;

/// The commands on maps as a whole: new, open, save under another name. All raise errors.
class MapFiles
{
    Q_DECLARE_TR_FUNCTIONS(MapFiles)

public:
    /// Why a map is shown. ByUser: the scheme that is chosen for the opening is loaded.
    enum class Opening { ByUser, Other };

    /// The window that shows the map.
    struct Window {
        QWidget& widget; ///< dialogs are shown over it
        LayerControl& layerControl;
        MapSharing& sharing;
        ServerActions& servers;
        std::function<MapDocument&()> document; ///< the map that it shows
        /// Shows another map, whose data are known as far as contents tells.
        std::function<void(
            std::unique_ptr<MapDocument> document, const SourceContents& contents, Opening opening)>
            show;
    };

    /// What window refers to outlives this object.
    explicit MapFiles(Window window) : m_window(std::move(window)) { }

    /// Asks for a file, and shows a new map in it.
    void New();
    /// Asks for a map file, and opens it.
    void AskAndOpen();
    /// Opens another map, unless the user keeps the current map, or does not want a file that is open
    /// elsewhere. The current map stays open when the file cannot be opened, or when the user cancels the
    /// reading of its data, which raises Cancelled.
    void Open(const QString& path);
    /// Asks for a map on a server, and opens it.
    void AskAndOpenFromServer();
    /// Asks for a file, stores the map there, and shows it from there.
    void SaveAs();
    /// The same with a place on a server.
    void SaveOnServer();
    /// Opens the map once more, because its data are found elsewhere now.
    void OpenAgain();
    /// False when the user keeps an untitled map, which would be lost.
    bool KeepUntitledMap();

private:
    MapDocument& Document() const { return m_window.document(); }
    SourceContents ContentsOf(const MapDocument& document) const;
    void SaveTo(const PlaceToSave& target);
    void SaveCopyTo(const PlaceToSave& target, const MapAccess& access);
    void LetGoOf(const QString& path);
    void Show(
        std::unique_ptr<MapDocument> document, const SourceContents& contents = {},
        Opening opening = Opening::Other);

    Window m_window;
};

} // namespace Orvane
