// SPDX-License-Identifier: MIT
#include "shell/window/MapStatus.h"

#include "mapkit/canvas/MapCanvas.h"
#include "shell/window/ScaleBox.h"

#include <QLabel>
#include <QStatusBar>
#include <QTimer>

#include <chrono>

namespace Orvane {

namespace {

constexpr std::chrono::milliseconds MarkAfter{500};

} // namespace

MapStatus::MapStatus(QStatusBar& bar, MapCanvas& canvas)
    : QObject(&bar), m_bar(bar), m_canvas(canvas), m_drawing(AddLabel(QStringLiteral("lblDrawing"))),
      m_position(AddLabel(QStringLiteral("lblPosition"))), m_scale(new ScaleBox(canvas, &bar))
{
    bar.addPermanentWidget(m_scale);
    connect(m_scale, &ScaleBox::Refused, this, [this](const QString& reason) {
        m_bar.showMessage(reason, ShortMessageTime);
    });
    connect(&canvas, &MapCanvas::PointerMoved, this, [this](QPointF map) {
        m_position->setText(m_positionText.Of(map));
    });
    MarkDrawing();
}

void MapStatus::SetSystem(const QString& system)
{
    m_positionText = PositionText(system);
    m_scale->ShowScale();
}

QLabel* MapStatus::AddLabel(const QString& name)
{
    auto* label = new QLabel(&m_bar);
    label->setObjectName(name);
    m_bar.addPermanentWidget(label);
    return label;
}

void MapStatus::MarkDrawing()
{
    auto* mark = new QTimer(this);
    mark->setSingleShot(true);
    mark->setInterval(MarkAfter);
    connect(mark, &QTimer::timeout, this, [this] { m_drawing->setText(tr("Drawing...")); });
    connect(&m_canvas.Picture(), &MapPicture::BusyChanged, this, [this, mark](bool busy) {
        if (busy)
            return mark->start();
        mark->stop();
        m_drawing->clear();
    });
}

} // namespace Orvane
