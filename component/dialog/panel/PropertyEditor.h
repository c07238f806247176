// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <functional>
#include <vector>

class QWidget;

namespace Orvane {

class LayerStyle;

/// A control of the panel and the slot of LayerStyle that it edits.
struct SlotControl {
    qint16 slot = 0;
    QWidget* control = nullptr;
    /// What edits the control's value and has the focus, where that is another control: it speaks for it.
    QWidget* speaker = nullptr;
};

/// One group of controls on the property panel, which edits some slots of the selection record.
///
/// The panel owns its editors and knows nothing else of them: it shows them the record, reads them back, and
/// underlines the controls whose values differ. A new kind of property joins by implementing this and being
/// handed to PropertyPanel::Join. All members may raise what the host raises.
class PropertyEditor
{
public:
    using ChangeHandler = std::function<void(QWidget* control)>;

    PropertyEditor() = default;
    virtual ~PropertyEditor() = default;
    PropertyEditor(const PropertyEditor&) = delete;
    PropertyEditor& operator=(const PropertyEditor&) = delete;

    /// The controls that carry a slot number in their Tag. A control that edits two slots is named twice.
    virtual std::vector<SlotControl> Controls() const = 0;

    /// Fills the lists that do not depend on the selection; at initialisation, and again when that failed.
    virtual void Fill() { }

    /// Puts the record's values on the controls; a Null slot as "various". Each control that is set is
    /// announced as changed.
    virtual void Show(const LayerStyle& record) = 0;

    /// Puts what the controls show into the slots of this editor. Raises 13 (type mismatch) for a text that
    /// cannot be read.
    virtual void Read(LayerStyle& style) const = 0;

    /// Shows the values anew after a change of language; edits stay.
    virtual void Retranslate() { }

    /// Who is told when a control was set, by the person or by Show. Set once, by the panel.
    void SetChangeHandler(ChangeHandler handler) { m_changed = std::move(handler); }

protected:
    /// Announces that the control shows another value, or the same one set anew.
    void NotifyChanged(QWidget* control) const
    {
        if (m_changed)
            m_changed(control);
    }

private:
    ChangeHandler m_changed;
};

} // namespace Orvane
