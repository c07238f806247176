// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <functional>

namespace Orvane {

class OvCombo;

/// Makes the keys and the wheel skip an item that opens a dialog: in the closed box this item is not a value
/// to pass through. The user chooses it from the open list.
class StepOverCommand : public QObject
{
    Q_OBJECT

public:
    /// combo: not owned; outlives this object. commandIndex: returns the index of the item, -1 if there is
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
