// SPDX-License-Identifier: MIT
#include "examples/sample_maps/SampleMap.h"

#include <QGuiApplication>

#include <cstdio>

// usage: make_sample_map MAP [DATA_FOLDER]
int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() < 2 || words.size() > 3) {
        std::fputs("usage: make_sample_map MAP [DATA_FOLDER]\n", stderr);
        return 2;
    }
    try {
        Orvane::MakeSampleMap(words.at(1), words.value(2));
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "make_sample_map: %s\n", error.what());
        return 1;
    }
}
