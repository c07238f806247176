// SPDX-License-Identifier: MIT
#include "component/styles/PickersFixture.h"

#include "component/common/Component.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTimer>
#include <QWheelEvent>
#include <QtTest>

namespace Orvane::Testing {

PickersFixture::PickersFixture()
{
    Component::Get().SetHost(&host, &host.Shell());
    window.setGeometry(100, 100, 300, 200);
    window.show();
}

PickersFixture::~PickersFixture()
{
    Component::Get().SetHost(nullptr, nullptr);
}

void PickersFixture::TakeUsualSize(OvCombo& list)
{
    list.setGeometry(20, 30, 160, 21);
    list.show();
}

void PickersFixture::Choose(OvCombo& list, int index)
{
    list.showPopup();
    QAbstractItemView& view = *list.view();
    const QModelIndex item = list.model()->index(index, 0);
    view.scrollTo(item);
    QTest::mouseMove(view.viewport(), view.visualRect(item).center());
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(item).center());
    QCoreApplication::processEvents();
}

void PickersFixture::Key(OvCombo& list, Qt::Key key)
{
    QTest::keyClick(&list, key);
}

void PickersFixture::Turn(OvCombo& list, int angle)
{
    const QPointF middle = QRectF(list.rect()).center();
    QWheelEvent event(
        middle, list.mapToGlobal(middle.toPoint()), QPoint(), QPoint(0, angle), Qt::NoButton, Qt::NoModifier,
        Qt::NoScrollPhase, false);
    QApplication::sendEvent(&list, &event);
}

std::vector<qint32> PickersFixture::DataOf(const OvCombo& list)
{
    std::vector<qint32> data;
    for (int index = 0; index < list.ListCount(); ++index)
        data.push_back(list.ItemData(index));
    return data;
}

ColourDialogRobot::ColourDialogRobot(Act act) : m_act(std::move(act))
{
    qApp->installEventFilter(this);
}

ColourDialogRobot::Act ColourDialogRobot::Pick(const QColor& colour)
{
    return [colour](QColorDialog& dialog) {
        dialog.setCurrentColor(colour);
        auto* buttons = dialog.findChild<QDialogButtonBox*>();
        QTest::mouseClick(buttons->button(QDialogButtonBox::Ok), Qt::LeftButton);
    };
}

ColourDialogRobot::Act ColourDialogRobot::Cancel()
{
    return [](QColorDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); };
}

bool ColourDialogRobot::eventFilter(QObject* watched, QEvent* event)
{
    auto* dialog = qobject_cast<QColorDialog*>(watched);
    if (dialog && event->type() == QEvent::Show) {
        m_opened = true;
        m_start = dialog->currentColor();
        m_title = dialog->windowTitle();
        QTimer::singleShot(0, dialog, [this, dialog] { m_act(*dialog); });
    }
    return false;
}

} // namespace Orvane::Testing
