// SPDX-License-Identifier: MIT
#include "shell/window/ScaleBox.h"

#include "mapkit/canvas/MapCanvas.h"
#include "mapkit/drawing/ScaleText.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QWheelEvent>

#include <array>

namespace Orvane {

namespace {

constexpr std::array UsualScales{500.0,        1'000.0,      2'500.0,     5'000.0,      10'000.0,
                                 25'000.0,     50'000.0,     100'000.0,   250'000.0,    500'000.0,
                                 1'000'000.0,  2'500'000.0,  5'000'000.0, 10'000'000.0, 25'000'000.0,
                                 50'000'000.0, 100'000'000.0};
constexpr double WidestScale = 888'800'000;

} // namespace

ScaleBox::ScaleBox(MapCanvas& canvas, QWidget* parent) : QComboBox(parent), m_canvas(canvas)
{
    setObjectName(QStringLiteral("cmbScale"));
    setAccessibleName(tr("Scale of the map"));
    setToolTip(
        tr("The scale of the map. Type another one, such as %1, and press Enter.").arg(ScaleText(25000)));
    setEditable(true);
    setInsertPolicy(NoInsert);
    setDuplicatesEnabled(true); // or Enter would also choose an entry with the same text
    setCompleter(nullptr);
    setMaxVisibleItems(int(UsualScales.size()));
    for (const double scale : UsualScales)
        addItem(ScaleText(scale), scale);
    const int textWidth = fontMetrics().horizontalAdvance(ScaleText(WidestScale));
    lineEdit()->setMinimumWidth(textWidth + 2 * fontMetrics().averageCharWidth());
    setSizeAdjustPolicy(AdjustToContents);
    ShowScale();
    connect(&canvas, &MapCanvas::ViewChanged, this, &ScaleBox::ShowScale);
    connect(lineEdit(), &QLineEdit::returnPressed, this, &ScaleBox::Enter);
    connect(this, qOverload<int>(&QComboBox::activated), this, [this](int index) {
        m_canvas.ZoomToScale(itemData(index).toDouble());
        Restore();
    });
}

void ScaleBox::ShowScale()
{
    if (lineEdit()->isModified())
        return;
    setCurrentIndex(-1); // none of the list is the scale, unless chosen
    setEditText(ScaleText(m_canvas.ScaleDenominator()));
    lineEdit()->setModified(false);
}

void ScaleBox::keyPressEvent(QKeyEvent* event)
{
    const QList<int> listKeys = {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown};
    if (event->key() == Qt::Key_Escape)
        Restore();
    else if (listKeys.contains(event->key()))
        showPopup(); // the closed list would begin at its end, far from the scale of now
    else
        QComboBox::keyPressEvent(event);
}

void ScaleBox::focusOutEvent(QFocusEvent* event)
{
    QComboBox::focusOutEvent(event);
    if (event->reason() == Qt::PopupFocusReason)
        return;
    lineEdit()->setModified(false);
    ShowScale();
}

// The wheel scrolls through no list that is closed: the map would jump.
void ScaleBox::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}

void ScaleBox::Enter()
{
    const auto denominator = ReadScale(currentText());
    if (!denominator) {
        lineEdit()->selectAll();
        emit Refused(tr("\"%1\" is not a scale. Type one such as %2.").arg(currentText(), ScaleText(25000)));
        return;
    }
    m_canvas.ZoomToScale(*denominator);
    Restore();
}

void ScaleBox::Restore()
{
    lineEdit()->setModified(false);
    ShowScale();
    m_canvas.setFocus();
}

} // namespace Orvane
