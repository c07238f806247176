// SPDX-License-Identifier: MIT
// A host whose layers are a std::vector and no file: the layer control edits the lines that it draws.
#include "LinesWindow.h"

#include <orvane/OrvaneShellLib/RunTimeError.h>
#include <orvane/hostkit/HostKitTexts.h>

#include <QApplication>

#include <cstdio>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QApplication::setOrganizationName("Orvane");
    Orvane::HostKitTexts::Install();
    try {
        LinesWindow window({{1, "Roads", Qt::red}, {2, "Rivers", Qt::blue}, {3, "Paths", Qt::darkGreen}});
        window.resize(300, 120);
        window.show();
        window.ShowLayerControl();
        return QApplication::exec();
    } catch (const Orvane::RunTimeError& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
