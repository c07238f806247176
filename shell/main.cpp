// SPDX-License-Identifier: MIT
#include "hostkit/tracing/CallTrace.h"
#include "messages/CatalogueTranslator.h"
#include "shell/CommandLine.h"
#include "shell/Guard.h"
#include "shell/MainWindow.h"
#include "shell/RecentMaps.h"
#include "shell/sample/SampleMap.h"

#include <QApplication>
#include <QFile>
#include <QLocale>

#include <cstdio>
#include <optional>

using namespace Orvane;

namespace {

// "de" for the first of the person's languages that there is a catalogue for; a null text for none.
QString CatalogueFile()
{
    const QString folder = QCoreApplication::applicationDirPath() + QLatin1String("/translations/orvane.");
    for (const QString& language : QLocale().uiLanguages()) {
        for (const QString& name : {language, language.section(QLatin1Char('-'), 0, 0)}) {
            if (name == QLatin1String("en"))
                return {};
            if (QFile::exists(folder + name + QLatin1String(".ts")))
                return folder + name + QLatin1String(".ts");
        }
    }
    return {};
}

void OpenFirstMap(MainWindow& window, const QString& asked)
{
    const QString map = asked.isEmpty() ? RecentMaps::All().value(0) : asked;
    if (!map.isEmpty())
        Guard(&window, [&] { window.OpenMap(map); });
}

int MakeSample(const CommandLine& line)
{
    try {
        MakeSampleMap(line.sampleMap, line.dataFolder);
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "orvane: %s\n", error.what());
        return 1;
    }
}

int ShowWindow(const QApplication& application, const CommandLine& line)
{
    QFile traceFile(line.traceFile);
    std::optional<CallTrace> trace;
    if (!line.traceFile.isEmpty()) {
        if (!traceFile.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered)) {
            std::fprintf(
                stderr, "orvane: %s: %s\n", qPrintable(line.traceFile), qPrintable(traceFile.errorString()));
            return 1;
        }
        trace.emplace(traceFile);
    }
    MainWindow window(trace ? &*trace : nullptr);
    window.show();
    OpenFirstMap(window, line.map);
    if (line.layerControl)
        Guard(&window, [&] { window.ShowLayerControl(); });
    return application.exec();
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Orvane"));
    QCoreApplication::setApplicationName(QStringLiteral("Orvane"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ORVANE_VERSION));
    CatalogueTranslator translator(MessageCatalogue::FromFile(CatalogueFile()));
    QCoreApplication::installTranslator(&translator);
    const CommandLine line = ReadCommandLine(application);
    return line.sampleMap.isEmpty() ? ShowWindow(application, line) : MakeSample(line);
}
