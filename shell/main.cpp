// SPDX-License-Identifier: MIT
#include "hostkit/HostKitTexts.h"
#include "hostkit/tracing/CallTrace.h"
#include "mapkit/common/Guard.h"
#include "shell/MainWindow.h"
#include "shell/command/CommandLine.h"
#include "shell/window/QtTexts.h"
#include "shell/window/RecentMaps.h"
#include "shell/window/RunWithProgress.h"
#include "shell/window/WindowPlace.h"

#include <QApplication>
#include <QFile>
#include <QTextStream>
#include <QTranslator>

#include <cstdio>
#include <cstdlib>
#include <optional>

using namespace Orvane;

namespace {

// Installs the translations and sets the names; made after the application object.
class Setting
{
public:
    Setting()
    {
        QCoreApplication::setOrganizationName(QStringLiteral("Orvane"));
        QCoreApplication::setApplicationName(QStringLiteral("Orvane"));
        QCoreApplication::setApplicationVersion(QStringLiteral(ORVANE_VERSION));
        // Qt asks the translator that was installed last first.
        if (LoadQtTexts(m_qtTranslator, HostKitTexts::Language()))
            QCoreApplication::installTranslator(&m_qtTranslator);
        HostKitTexts::Install();
    }

private:
    QTranslator m_qtTranslator;
};

void OpenFirstMap(MainWindow& window, const QString& asked)
{
    const QString map = asked.isEmpty() ? RecentMaps::Latest() : asked;
    if (!map.isEmpty())
        Guard(&window, [&] { window.OpenMap(map); });
}

int ShowWindow(const QApplication& application, const WindowRequest& request, const Terminal& terminal)
{
    QFile traceFile(request.traceFile);
    std::optional<CallTrace> trace;
    if (!request.traceFile.isEmpty()) {
        if (!traceFile.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered)) {
            TellError(terminal, request.traceFile + QStringLiteral(": ") + traceFile.errorString());
            return ExitCode::Problems;
        }
        trace.emplace(traceFile);
    }
    MainWindow window(trace ? &*trace : nullptr);
    WindowPlace::Show(window);
    OpenFirstMap(window, request.map);
    const auto show
        = request.layerControl ? &MainWindow::ShowLayerControl : &MainWindow::ShowLayerControlAgain;
    Guard(&window, [&] { (window.*show)(); });
    return application.exec();
}

QStringList WordsOf(int argc, char** argv)
{
    QStringList words;
    for (int i = 0; i < argc; ++i)
        words << QString::fromLocal8Bit(argv[i]);
    return words;
}

// Without a desktop, hints about desktops are of no use.
void DropHints(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    if (type == QtCriticalMsg || type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", qPrintable(TerminalText(message)));
}

// Fonts and pictures need a platform, but not a display.
// words: the arguments as given; the application object would consume some of them, for example "--title".
int RunWithoutWindow(int argc, char** argv, const QStringList& words, const Terminal& terminal)
{
    qInstallMessageHandler(DropHints);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const Setting setting;
    return std::get<int>(RunCommandLine(words, terminal));
}

} // namespace

int main(int argc, char** argv)
{
    QTextStream out(stdout);
    QTextStream errors(stderr);
    const Terminal terminal{out, errors};
    const QStringList words = WordsOf(argc, argv);
    if (NeedsNoWindow(words))
        return RunWithoutWindow(argc, argv, words, terminal);
    const QApplication application(argc, argv);
    const Setting setting;
    const auto answer = RunCommandLine(QCoreApplication::arguments(), terminal);
    if (const int* ended = std::get_if<int>(&answer))
        return *ended;
    const int code = ShowWindow(application, std::get<WindowRequest>(answer), terminal);
    if (IsGivenUpWorkRunning())
        std::_Exit(code); // its thread may use what would be destroyed now
    return code;
}
