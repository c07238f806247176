// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/panel/PropertyEditor.h"

#include <OrvaneShellLib/Value.h>

#include <QObject>

namespace Orvane {

class CheckBoxPlus;

/// The value of a check box's state: 0 gives false, 1 true, 2 Null, any other Empty.
Value CheckStateToValue(qint16 state);

/// The seven flags of a layer, each on a three-state box. A box can be clicked into the greyed state only
/// where the layers of the selection really differ.
class FlagEditor final : public QObject, public PropertyEditor
{
    Q_OBJECT

public:
    struct Widgets {
        CheckBoxPlus* chkVisible;
        CheckBoxPlus* chkSelectable;
        CheckBoxPlus* chkLocked;
        CheckBoxPlus* chkHitable;
        CheckBoxPlus* chkSnapRequired;
        CheckBoxPlus* chkEnquirable;
        CheckBoxPlus* chkUseForSymbols;
    };

    /// widgets: not owned; outlive this object.
    explicit FlagEditor(const Widgets& widgets);

    std::vector<SlotControl> Controls() const override;
    void Show(const LayerStyle& record) override;
    void Read(LayerStyle& style) const override;

private:
    struct Flag {
        qint16 slot;
        CheckBoxPlus* box;
    };

    void OnClick(CheckBoxPlus* box);
    void EnableDependents();

    Widgets m_widgets;
    std::vector<Flag> m_flags;
};

} // namespace Orvane
