// SPDX-License-Identifier: MIT
#pragma once

#include "hosts/MemoryHost.h"
#include "hosts/ValueMatchers.h"
#include "ovctrls/OvCombo.h"

#include <QColorDialog>
#include <QObject>
#include <QPointer>

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <vector>

namespace Orvane::Testing {

/// A host in memory, a window, and the actions of a user on its lists.
class PickersFixture : public testing::Test
{
protected:
    PickersFixture();
    ~PickersFixture() override;

    /// Gives the list the size of 2400 by 315 twips.
    static void TakeUsualSize(OvCombo& list);

    /// Opens the list and clicks the item.
    void Choose(OvCombo& list, int index);
    static void Key(OvCombo& list, Qt::Key key);
    /// Turns the wheel by one notch over the closed list.
    static void TurnDown(OvCombo& list) { Turn(list, -120); }
    static void TurnUp(OvCombo& list) { Turn(list, 120); }

    static std::vector<qint32> DataOf(const OvCombo& list);
    static QString TextOf(const OvCombo& list, int index) { return list.itemText(index); }

    MemoryHost host;
    QWidget window;

private:
    static void Turn(OvCombo& list, int angle);
};

/// Acts in the colour dialog that opens during its lifetime, and records its initial state.
class ColourDialogRobot : public QObject
{
    Q_OBJECT

public:
    using Act = std::function<void(QColorDialog&)>;

    explicit ColourDialogRobot(Act act);

    /// Picks the colour and presses OK.
    static Act Pick(const QColor& colour);
    /// Presses Escape.
    static Act Cancel();

    bool HasOpened() const { return m_opened; }
    const QColor& Start() const { return m_start; }
    const QString& Title() const { return m_title; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Act m_act;
    bool m_opened = false;
    QColor m_start;
    QString m_title;
};

} // namespace Orvane::Testing
