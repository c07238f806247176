// SPDX-License-Identifier: MIT
#include <OrvaneShellLib/IStyleEditor.h>
#include <OrvaneShellLib/IStyleEditorLibrary.h>

#include <QApplication>

#include <cstdio>
#include <hostkit/LayerList.h>
#include <hostkit/StandardClient.h>
#include <hostkit/StandardShellServices.h>
#include <hostkit/StyleEditorPlugin.h>
#include <store/ILayerStore.h>
#include <store/opening/LayerStores.h>

using namespace Orvane;

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const auto database = LayerStores::CreateInMemory();
    StandardShellServices services;
    StandardClient client(*database, services);
    LayerList list(*database, client);
    list.Update({{.id = 1, .name = QStringLiteral("Roads")}});
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
