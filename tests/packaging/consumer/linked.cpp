// SPDX-License-Identifier: MIT
// The same with the component linked in.
#include <OrvaneShellLib/IStyleEditor.h>
#include <OrvaneShellLib/LinkedComponent.h>

#include <QApplication>

#include <cstdio>
#include <hostkit/StandardClient.h>
#include <hostkit/StandardShellServices.h>
#include <store/ILayerStore.h>
#include <store/opening/LayerStores.h>

using namespace Orvane;

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const auto database = LayerStores::CreateInMemory();
    StandardShellServices services;
    StandardClient client(*database, services);
    const auto library = LinkedStyleEditorLibrary();
    library->Initialise(&client);
    IStyleEditor* editor = library->NewStyleEditor(QStringLiteral("Main"));
    editor->Visible(true);
    const bool shown = editor->Visible();
    editor->Visible(false);
    std::puts(shown ? "the linked layer control was shown" : "the linked layer control was not shown");
    return shown ? 0 : 1;
}
