// SPDX-License-Identifier: MIT
// The same with the component linked in.
#include <orvane/OrvaneShellLib/IStyleEditor.h>
#include <orvane/OrvaneShellLib/LinkedComponent.h>
#include <orvane/hostkit/StandardClient.h>
#include <orvane/hostkit/StandardShellServices.h>
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
    const auto library = LinkedStyleEditorLibrary();
    library->Initialise(&client);
    IStyleEditor* editor = library->NewStyleEditor(QStringLiteral("Main"));
    editor->Visible(true);
    const bool shown = editor->Visible();
    editor->Visible(false);
    std::puts(shown ? "the linked layer control was shown" : "the linked layer control was not shown");
    return shown ? 0 : 1;
}
