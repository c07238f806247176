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
    /// The control that edits the value and has the focus, if that is another one: screen readers read it.
    QWidget* speaker = nullptr;
};

/// One group of controls on the property panel, which edits some slots of the selection record.
///
/// The panel owns its editors and knows nothing else about them: it shows them the record, reads them back,
/// and underlines the controls whose values differ. To add a new kind of property, implement this class and
/// pass it to PropertyPanel::Join. All members may raise what the host raises.
class PropertyEditor
{
public:
    using ChangeHandler = std::function<void(QWidget* control)>;

    PropertyEditor() = default;
    virtual ~PropertyEditor() = default;
    PropertyEditor(const PropertyEditor&) = delete;
    PropertyEditor& operator=(const PropertyEditor&) = delete;

    /// The controls with a slot number in their Tag. A control that edits two slots is listed twice.
    virtual std::vector<SlotControl> Controls() const = 0;

    /// Fills the lists that do not depend on the selection; at initialisation, and again if that failed.
    virtual void Fill() { }

    /// Shows values in the controls; a Null slot as "various". record: what is stored, which says whether
    /// "various" can be chosen. shown: the values to show, those of the record or edits of it. Each control
    /// that is set is reported as changed.
    virtual void Show(const LayerStyle& record, const LayerStyle& shown) = 0;

    /// Reads what the controls show into the slots of this editor. Raises 13 (type mismatch) for a text that
    /// cannot be read.
    virtual void Read(LayerStyle& style) const = 0;

    /// Shows the values again after a change of language; edits stay.
    virtual void Retranslate() { }

    /// Sets the handler to call when the user or Show sets a control. The panel sets it once.
    void SetChangeHandler(ChangeHandler handler) { m_changed = std::move(handler); }

protected:
    /// Notifies the handler that the control shows another value, or that the same one was set again.
    void NotifyChanged(QWidget* control) const
    {
        if (m_changed)
            m_changed(control);
    }

private:
    ChangeHandler m_changed;
};

} // namespace Orvane
