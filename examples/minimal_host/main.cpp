// SPDX-License-Identifier: MIT
// The smallest useful host: the layer control on a layer database, which is made if it is missing.
//
//     minimal_host map.ovl
#include <orvane/OrvaneShellLib/IStyleEditor.h>
#include <orvane/OrvaneShellLib/IStyleEditorLibrary.h>
#include <orvane/OrvaneShellLib/RunTimeError.h>
#include <orvane/hostkit/HostKitTexts.h>
#include <orvane/hostkit/StandardClient.h>
#include <orvane/hostkit/StandardShellServices.h>
#include <orvane/hostkit/StyleEditorPlugin.h>
#include <orvane/hostkit/lists/StoredList.h>
#include <orvane/store/ILayerStore.h>
#include <orvane/store/opening/LayerStores.h>

#include <QApplication>
#include <QFile>

#include <cstdio>

using namespace Orvane;

namespace {

void FillStore(std::unique_ptr<ILayerStore> store)
{
    StoredList::Update(
        *store,
        {{.id = 1, .name = "Roads", .lineColour = 0x0000FF, .priority = 1}, // colours are BGR
         {.id = 2, .name = "Rivers", .lineColour = 0xFF0000, .priority = 2},
         {.id = 3, .name = "Buildings", .lineColour = 0x808080, .priority = 3}},
        {{.id = 1, .name = "Base map", .layers = {1, 2, 3}, .expanded = true}});
}

int ShowLayerControl(const QString& path)
{
    if (!QFile::exists(path))
        LayerStores::Make(path, IfExists::Refuse, FillStore);
    const auto store = LayerStores::Open(path);
    StandardShellServices services;
    StandardClient client(*store, services);
    StyleEditorPlugin component; // destroyed first: it ends its editors through the client
    component.Library().Initialise(&client);
    component.Library().NewStyleEditor("Main")->Visible(true);
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QApplication::setOrganizationName("Orvane"); // the user's settings are kept under it
    HostKitTexts::Install();
    try {
        return ShowLayerControl(QApplication::arguments().value(1, "map.ovl"));
    } catch (const RunTimeError& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
