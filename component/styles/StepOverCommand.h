// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <functional>

namespace Orvane {

class OvCombo;

/// Lets the keys and the wheel step over an item that opens a dialog: on the closed box that item is not a
/// value to pass through. It is chosen from the open list.
class StepOverCommand : public QObject
{
    Q_OBJECT

public:
    /// combo: not owned; outlives this object. commandIndex: answers where the item stands, -1 when there is
    /// none.
    StepOverCommand(OvCombo& combo, std::function<int()> commandIndex);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool StepBeyond(int target, int step);

    OvCombo& m_combo;
    std::function<int()> m_commandIndex;
};

} // namespace Orvane
