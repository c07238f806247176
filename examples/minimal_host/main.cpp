// SPDX-License-Identifier: MIT
// The smallest useful host: the layer control on a layer database, which is made if it is missing.
//
//     minimal_host map.ovl
#include "hostkit/StandardClient.h"
#include "hostkit/StandardShellServices.h"
#include "hostkit/StyleEditorPlugin.h"
#include "store/ILayerStore.h"
#include "store/opening/LayerStores.h"

#include <OrvaneShellLib/IStyleEditor.h>
#include <OrvaneShellLib/IStyleEditorLibrary.h>
#include <OrvaneShellLib/RunTimeError.h>

#include <QApplication>
#include <QFile>

#include <cstdio>

using namespace Orvane;

namespace {

void AddLayer(ILayerStore& database, qint32 number, const QString& name, qint32 colour)
{
    database.Execute(
        "INSERT INTO Layers (LayerID, Name, Code, Color, Priority) VALUES (?1, ?2, ?1, ?3, ?1)",
        {number, name, colour});
    database.Execute(
        "INSERT INTO LayerGroupMembers (GroupID, LayerID, Ordering) VALUES (1, ?1, ?1)", {number});
}

std::unique_ptr<ILayerStore> OpenOrCreate(const QString& path)
{
    if (QFile::exists(path))
        return LayerStores::Open(path);
    auto database = LayerStores::Create(path);
    database->Execute("INSERT INTO LayerGroups (ID, Name, Expanded) VALUES (1, 'Base map', 1)");
    AddLayer(*database, 1, "Roads", 0x0000FF); // colours are BGR
    AddLayer(*database, 2, "Rivers", 0xFF0000);
    AddLayer(*database, 3, "Buildings", 0x808080);
    return database;
}

int ShowLayerControl(const QString& path)
{
    const auto database = OpenOrCreate(path);
    StandardShellServices services;
    StandardClient client(*database, services);
    StyleEditorPlugin component; // destroyed first: it ends its editors through the client
    component.Library().Initialise(&client);
    component.Library().NewStyleEditor("Main")->Visible(true);
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName("Orvane");
    QApplication::setApplicationName("minimal_host");
    try {
        return ShowLayerControl(QApplication::arguments().value(1, "map.ovl"));
    } catch (const RunTimeError& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
