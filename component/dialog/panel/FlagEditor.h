// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/panel/PropertyEditor.h"

#include <OrvaneShellLib/Value.h>

#include <QObject>

namespace Orvane {

class CheckBoxPlus;

/// The value of a check box's state: 0 gives false, 1 true, 2 Null, any other Empty.
Value CheckStateToValue(qint16 state);

/// The flags of a layer, each with a three-state box. The user can click a box into the greyed state only if
/// the selected layers really differ.
class FlagEditor final : public QObject, public PropertyEditor
{
    Q_OBJECT

public:
    /// A slot and the box that shows it.
    struct Flag {
        qint16 slot;
        CheckBoxPlus* box;
    };

    /// The boxes are not owned and outlive this object; those of Hitable, Selectable and Enquirable must be
    /// included.
    explicit FlagEditor(const std::vector<Flag>& flags);

    std::vector<SlotControl> Controls() const override;
    void Show(const LayerStyle& record, const LayerStyle& shown) override;
    void Read(LayerStyle& style) const override;

private:
    CheckBoxPlus* BoxOf(qint16 slot) const;
    void OnClick(CheckBoxPlus* box);
    void EnableDependents();

    std::vector<Flag> m_flags;
};

} // namespace Orvane
