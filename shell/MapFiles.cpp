// SPDX-License-Identifier: MIT
#include "shell/MapFiles.h"

#include "hostkit/windows/LongWork.h"
#include "mapkit/data/ReadingFailure.h"
#include "mapkit/document/MapDocument.h"
#include "shell/actions/LayerControl.h"
#include "shell/dialogs/MapFileDialog.h"
#include "shell/map/MapSharing.h"
#include "shell/servers/ServerActions.h"
#include "shell/servers/ServerMapDialog.h"
#include "shell/window/RecentMaps.h"
#include "shell/window/RunWithProgress.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

#include <utility>

namespace Orvane {

void MapFiles::Open(const QString& path)
{
    const QString place = ServerActions::Canonical(path);
    if (!Document().IsAt(place) && !m_window.sharing.MayOpen(place))
        return;
    m_window.layerControl.WithAnotherMap([&] {
        if (!KeepUntitledMap())
            return;
        m_window.servers.AwaitServer(place);
        const bool again = Document().IsAt(place);
        LetGoOf(place);
        std::unique_ptr<MapDocument> document = MapDocument::Open(place, m_window.servers.AccessTo(place));
        const SourceContents contents = again ? SourceContents() : ContentsOf(*document);
        Show(std::move(document), contents, Opening::ByUser);
        RecentMaps::Add(Document().Path());
    });
}

void MapFiles::OpenAgain()
{
    const QString place = Document().Path();
    m_window.layerControl.WithAnotherMap([&] {
        LetGoOf(place);
        std::unique_ptr<MapDocument> document = MapDocument::Open(place, m_window.servers.AccessTo(place));
        const SourceContents contents = ContentsOf(*document);
        Show(std::move(document), contents);
    });
}

// Before the map takes the place of the other, which stays when the user cancels. A map whose reading does
// not end then is opened without its data: another file must not keep it closed.
SourceContents MapFiles::ContentsOf(const MapDocument& document) const
{
    const std::vector<LayerSource> sources = document.Sources();
    try {
        return ReadOrGiveUp(
            &m_window.widget, tr("Reading map data"),
            [sources, system = document.System()](Progress& progress) {
                SourceContents contents = ReadSources(sources, system, progress);
                progress.StopIfCancelled(); // then it is not all
                return contents;
            });
    } catch (const ReadingGivenUp& error) {
        SourceContents nothing;
        for (const LayerSource& source : sources)
            nothing.failures.emplace(source.layerID, error.Description());
        return nothing;
    }
}

void MapFiles::New()
{
    if (!KeepUntitledMap())
        return;
    const QString folder = QFileInfo(MapFileDialog::Proposed(Document())).path();
    const QString path = MapFileDialog::Ask(tr("New Map"), folder + QLatin1Char('/'), &m_window.widget);
    if (path.isEmpty())
        return;
    m_window.layerControl.WithAnotherMap([&] {
        LetGoOf(path);
        Show(MapDocument::CreateOver(path));
        RecentMaps::Add(Document().Path());
    });
}

void MapFiles::AskAndOpen()
{
    const QString path = QFileDialog::getOpenFileName(
        &m_window.widget, tr("Open Map"), {}, tr("Maps (*.orvane);;All files (*)"));
    if (!path.isEmpty())
        Open(path);
}

void MapFiles::AskAndOpenFromServer()
{
    const QString place = m_window.servers.AskToOpen();
    if (!place.isEmpty())
        Open(place);
}

void MapFiles::SaveAs()
{
    const QString path
        = MapFileDialog::Ask(tr("Save Map As"), MapFileDialog::Proposed(Document()), &m_window.widget);
    SaveTo({path, IfExists::Replace}); // the dialog has asked
}

void MapFiles::SaveOnServer()
{
    SaveTo(m_window.servers.AskToSave());
}

void MapFiles::SaveTo(const PlaceToSave& target)
{
    const QString& place = target.place;
    if (place.isEmpty() || Document().IsAt(place))
        return;
    const bool isSaved = m_window.layerControl.WithEditorsClosed([&] {
        const MapAccess access = m_window.servers.AccessTo(place);
        SaveCopyTo(target, access);
        Show(MapDocument::Open(place, access));
    });
    if (isSaved)
        RecentMaps::Add(place);
}

void MapFiles::SaveCopyTo(const PlaceToSave& target, const MapAccess& access)
{
    const LongWork work(Document().Database(), tr("Saving the map"), &m_window.widget);
    Document().SaveCopy(target.place, access, target.ifExists);
}

bool MapFiles::KeepUntitledMap()
{
    if (!Document().Path().isEmpty() || !Document().HasLayers())
        return true;
    const auto answer = QMessageBox::question(
        &m_window.widget, tr("New map"), tr("Save this map before closing it?"),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    if (answer == QMessageBox::Save)
        SaveAs();
    return answer == QMessageBox::Discard || !Document().Path().isEmpty();
}

// A file that is opened twice in one program, or replaced while it is open, would lose its locks.
void MapFiles::LetGoOf(const QString& path)
{
    if (Document().IsAt(path))
        Show(MapDocument::Untitled());
}

void MapFiles::Show(std::unique_ptr<MapDocument> document, const SourceContents& contents, Opening opening)
{
    m_window.show(std::move(document), contents, opening);
}

} // namespace Orvane
