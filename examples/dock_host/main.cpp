// SPDX-License-Identifier: MIT
// A main window with the layer control docked in it.
//
//     dock_host map.ovl
#include "DockHost.h"

#include <orvane/OrvaneShellLib/IStyleEditor.h>
#include <orvane/OrvaneShellLib/IStyleEditorLibrary.h>
#include <orvane/OrvaneShellLib/RunTimeError.h>
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

int ShowMap(const QString& path)
{
    const auto layers = LayerStores::Open(path);
    StandardShellServices services;
    MapWindow window;
    DockClient client(*layers, services, window);
    client.SetMainWindow(&window);
    StyleEditorPlugin component; // destroyed first: it ends its editors through the client
    component.Library().Initialise(&client);
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
    try {
        return ShowMap(QApplication::arguments().value(1, "map.ovl"));
    } catch (const RunTimeError& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
