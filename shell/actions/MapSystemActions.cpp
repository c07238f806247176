// SPDX-License-Identifier: MIT
#include "shell/actions/MapSystemActions.h"

#include "mapkit/common/Guard.h"
#include "mapkit/coordinates/SystemFacts.h"
#include "mapkit/document/MapDocument.h"
#include "messages/NameInText.h"
#include "shell/map/ImportPlan.h"
#include "shell/map/MapSession.h"
#include "shell/window/MapNotice.h"

#include <QAction>
#include <QLocale>
#include <QMenu>
#include <QPointer>
#include <QStatusBar>
#include <QToolButton>

#include <utility>

namespace Orvane {

namespace {

constexpr int MostNames = 8;
constexpr int LongestTitle = 36; // times the width of an "x"

QString TipOf(const QString& system)
{
    const SystemFacts facts = FactsOf(system);
    if (!facts.isKnown)
        return MapSystemActions::tr("The map has no coordinate system yet; click to choose one.");
    const QString area = facts.areaName.isEmpty() ? MapSystemActions::tr("not stated") : facts.areaName;
    return MapSystemActions::tr("Coordinate system of the map: %1\nUnit: %2\nArea of use: %3")
        .arg(SystemTitle(system), facts.unit, area);
}

std::vector<SystemQuestion::Layer> SystemsOf(const MapSession& session)
{
    std::vector<SystemQuestion::Layer> layers;
    for (const MapLayer& layer : session.Layers()) {
        const QString system = layer.SourceSystem();
        if (!system.isEmpty())
            layers.push_back({layer.name, system});
    }
    return layers;
}

QStringList LinesOf(const ImportPlan& plan)
{
    QStringList lines = plan.NoteTexts(MostNames);
    if (!lines.isEmpty())
        lines << MapSystemActions::tr("Layers > Layer Properties... changes this.");
    return lines;
}

} // namespace

MapSystemActions::MapSystemActions(QWidget& window, QMenu& menu, QStatusBar& bar, MapNotice& notice)
    : m_window(window), m_notice(notice), m_button(new QToolButton(&bar))
{
    m_button->setObjectName(QStringLiteral("cmdMapSystem"));
    m_button->setAutoRaise(true);
    m_button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored); // the bar keeps its height
    bar.addPermanentWidget(m_button);
    menu.addSeparator();
    QAction* action = menu.addAction(tr("&Coordinate System of the Map..."));
    action->setObjectName(QStringLiteral("actMapSystem"));
    action->setStatusTip(tr("Choose the coordinate system that the map is shown in"));
    connect(action, &QAction::triggered, this, [this] { Guard(&m_window, [this] { Ask(); }); });
    connect(m_button, &QToolButton::clicked, action, &QAction::trigger);
}

void MapSystemActions::Use(MapSession& session)
{
    m_session = &session;
    m_shown = session.Document().System();
    m_notice.Show({});
    m_toldLast.clear();
    session.SetImportQuestions(
        {[this](ImportPlan& plan, QWidget* over) { Settle(plan, over); },
         [this](const ImportPlan& plan) { TellWithNextReading(plan); }});
    ShowSystem();
    connect(&session, &MapSession::LayersRead, this, &MapSystemActions::OnRead);
}

void MapSystemActions::ShowSystem()
{
    const QString system = m_session->Document().System();
    const QString title = system.isEmpty() ? tr("No coordinate system") : SystemTitle(system);
    const int widest = LongestTitle * m_button->fontMetrics().horizontalAdvance(QLatin1Char('x'));
    QString text = m_button->fontMetrics().elidedText(title, Qt::ElideMiddle, widest);
    m_button->setText(text.replace(QLatin1Char('&'), QLatin1String("&&")));
    m_button->setToolTip(TipOf(system));
    m_button->setAccessibleName(tr("Coordinate system of the map: %1").arg(title));
}

void MapSystemActions::Settle(ImportPlan& plan, QWidget* over)
{
    const QStringList unknown = plan.Unknown();
    if (unknown.isEmpty())
        return;
    SystemQuestion question;
    question.title = tr("Coordinate System of the Data");
    question.text
        = tr("No coordinate system is named by %1, and none was found that fits. Which one is it? With "
             "Cancel, the data are added as if they had the coordinates of the map.")
              .arg(
                  unknown.mid(0, MostNames).join(QLatin1String(", "))
                  + (unknown.size() > MostNames ? QStringLiteral(", ...") : QString()));
    question.layers = SystemsOf(*m_session);
    const QString system = SystemChooser::Ask(m_catalogue, question, over);
    if (!system.isEmpty())
        plan.Choose(system);
}

void MapSystemActions::Tell(const ImportPlan& plan)
{
    m_notice.Show(LinesOf(plan));
}

// The map may get its system by that, which takes away what was told before.
void MapSystemActions::TellWithNextReading(const ImportPlan& plan)
{
    m_toldLast = LinesOf(plan);
    m_notice.Show(m_toldLast);
}

void MapSystemActions::Ask()
{
    const QPointer session(m_session); // the map may be saved under another name while it asks
    MapDocument& document = m_session->Document();
    const QString before = document.System();
    const QString system = SystemChooser::Ask(
        m_catalogue, {tr("Coordinate System of the Map"), {}, before, SystemsOf(*m_session)}, &m_window);
    if (!session || system.isEmpty() || system == before)
        return;
    m_session->Shell().RecordStep([&] {
        document.SetSystem(system);
        return tr("Change Coordinate System of the Map");
    });
    emit SystemChosen();
}

void MapSystemActions::OnRead()
{
    Guard(&m_window, [this] {
        ShowSystem();
        const QString system = m_session->Document().System();
        const QStringList told = std::exchange(m_toldLast, {});
        if (std::exchange(m_shown, system) == system)
            return;
        m_notice.Show(told + WithoutPlaceTexts());
        emit SystemShown();
    });
}

QStringList MapSystemActions::WithoutPlaceTexts() const
{
    QStringList names = m_session->LayersWithoutPlace();
    if (names.isEmpty())
        return {};
    const qsizetype more = names.size() - MostNames;
    names = names.mid(0, MostNames);
    for (QString& name : names)
        name = NameInText(name);
    if (more > 0)
        names << tr("%1 more").arg(QLocale().toString(more));
    return {tr("Not everything in these layers has a place in %1: %2. It is shown again in a system that has "
               "one.")
                .arg(SystemTitle(m_session->Document().System()), names.join(QLatin1String(", ")))};
}

} // namespace Orvane
