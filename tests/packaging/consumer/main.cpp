// SPDX-License-Identifier: MIT
#include <orvane/OrvaneShellLib/IStyleEditor.h>
#include <orvane/OrvaneShellLib/IStyleEditorLibrary.h>
#include <orvane/hostkit/LayerList.h>
#include <orvane/hostkit/StandardClient.h>
#include <orvane/hostkit/StandardShellServices.h>
#include <orvane/hostkit/StyleEditorPlugin.h>
#include <orvane/store/ILayerStore.h>
#include <orvane/store/opening/LayerStores.h>

#include <QApplication>

#include <cstdio>

using namespace Orvane;

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const auto database = LayerStores::CreateInMemory();
    StandardShellServices services;
    StandardClient client(*database, services);
    LayerList list(*database, client);
    ListedLayer roads;
    roads.id = 1;
    roads.name = QStringLiteral("Roads");
    list.Update({roads});
    StyleEditorPlugin plugin(
        QStringLiteral(PLUGIN_FOLDER "/") + QLatin1String(StyleEditorPlugin::DefaultName));
    plugin.Library().Initialise(&client);
    IStyleEditor* editor = plugin.Library().NewStyleEditor(QStringLiteral("Main"));
    editor->Visible(true);
    const bool shown = editor->Visible();
    editor->Visible(false);
    std::puts(shown ? "the layer control was shown" : "the layer control was not shown");
    return shown ? 0 : 1;
}
