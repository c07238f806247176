// SPDX-License-Identifier: MIT
// A main window with the layer control docked in it.
//
//     dock_host map.ovl [folder]
//
// The folder may hold texts in a language that the package does not have.
#include "DockHost.h"

#include <orvane/OrvaneShellLib/IStyleEditor.h>
#include <orvane/OrvaneShellLib/IStyleEditorLibrary.h>
#include <orvane/OrvaneShellLib/IStyleEditorTexts.h>
#include <orvane/OrvaneShellLib/RunTimeError.h>
#include <orvane/hostkit/HostKitTexts.h>
#include <orvane/hostkit/StandardShellServices.h>
#include <orvane/hostkit/StyleEditorPlugin.h>
#include <orvane/store/opening/LayerStores.h>

#include <QApplication>

#include <cstdio>

using namespace Orvane;

namespace {

void ShowEditor(IStyleEditorLibrary& library, const QString& editorID)
{
    IStyleEditor* editor = library.GetStyleEditor(editorID);
    (editor ? editor : library.NewStyleEditor(editorID))->Visible(true);
}

void AddTexts(IStyleEditorLibrary& library, const QString& folder)
{
    auto* texts = dynamic_cast<IStyleEditorTexts*>(&library);
    if (texts && !folder.isEmpty())
        texts->AddTextFolder(folder); // takes folder/POBEX.nl.ts and folder/nl/POBEX.LRT
}

int ShowMap(const QString& path, const QString& textFolder)
{
    const auto layers = LayerStores::Open(path);
    StandardShellServices services;
    MapWindow window;
    DockClient client(*layers, services, window);
    client.SetMainWindow(&window);
    StyleEditorPlugin component; // destroyed first: it ends its editors through the client
    component.Library().Initialise(&client);
    AddTexts(component.Library(), textFolder);
    QObject::connect(&window.Dock(), &EditorDock::EditorWanted, &window, [&](const QString& editorID) {
        ShowEditor(component.Library(), editorID);
    });
    window.Draw(*layers);
    window.Restore();
    window.show();
    ShowEditor(component.Library(), "Main");
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName("Orvane");
    QApplication::setApplicationName("dock_host");
    const QString folder = QApplication::arguments().value(2);
    HostKitTexts::Install(QLocale(), folder); // looks for folder/orvane.nl.ts, then in the package
    try {
        return ShowMap(QApplication::arguments().value(1, "map.ovl"), folder);
    } catch (const RunTimeError& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
