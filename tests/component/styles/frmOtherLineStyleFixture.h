// SPDX-License-Identifier: MIT
#pragma once

#include "component/common/Component.h"
#include "component/styles/frmOtherLineStyle.h"
#include "hosts/MemoryHost.h"
#include "ovctrls/OvSpin.h"
#include "support/MessageBoxRobot.h"
#include "support/PseudoLanguage.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QToolButton>
#include <QtTest>

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Orvane::Testing {

/// The line width dialog in a host that shows and hides it, and the actions of its user.
class frmOtherLineStyleTest : public testing::Test
{
protected:
    frmOtherLineStyleTest()
    {
        Component::Get().SetHost(&host, &host.Shell());
        owner.setGeometry(50, 50, 200, 100);
        owner.show();
        host.Shell().OnCloseModal = [](QWidget* shown) { shown->hide(); };
    }
    ~frmOtherLineStyleTest() override { Component::Get().SetHost(nullptr, nullptr); }

    QLineEdit& Width() { return *form->findChild<QLineEdit*>("bedThickness"); }
    OvSpin& Spin() { return *form->findChild<OvSpin*>("WidthSpin"); }
    QRadioButton& Pixels() { return *form->findChild<QRadioButton*>("optPixels"); }
    QRadioButton& Millimetres() { return *form->findChild<QRadioButton*>("optMillimetres"); }
    QPushButton& Ok() { return *form->findChild<QPushButton*>("cmdOK"); }
    QPushButton& Cancel() { return *form->findChild<QPushButton*>("cmdCancel"); }

    // Opens the dialog, performs the user's actions, and closes it if the user did not.
    bool Choose(const std::function<void()>& user)
    {
        host.Shell().OnShowModal = [&user](QWidget* shown) {
            shown->show();
            QApplication::setActiveWindow(shown);
            user();
            shown->hide();
        };
        return form->ChooseLineWidth(thickness, x, y);
    }
    void Type(const char* text)
    {
        Width().selectAll();
        QTest::keyClicks(&Width(), text);
    }
    static void Click(QWidget& control) { QTest::mouseClick(&control, Qt::LeftButton, {}, QPoint(8, 8)); }

    QStringList ShellCalls() { return host.Log().Of(CallKind::Shell); }

    MemoryHost host;
    QWidget owner;
    std::unique_ptr<frmOtherLineStyle> form = std::make_unique<frmOtherLineStyle>(&owner);
    qint16 thickness = 0;
    Twips x = 300 * 15;
    Twips y = 200 * 15;
};

} // namespace Orvane::Testing
