// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/panel/PropertyEditor.h"
#include "component/model/LayerStyle.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QHash>
#include <QObject>
#include <QSet>

#include <memory>
#include <optional>
#include <vector>

class QWidget;

namespace Orvane {

/// The property that holds a control's slot number as a decimal text.
inline constexpr char TagProperty[] = "Tag";

/// The property panel: shows one record in the controls of its editors, underlines those that the user set to
/// another value, and reads all of them back.
///
///     panel.Join(std::make_unique<FlagEditor>(...));
///     panel.Prepare();
///     panel.Show(record);
///     panel.ReadPanelStyle(style);
///
/// The user's edits are held in the controls; only Show replaces the record.
class PropertyPanel : public QObject
{
    Q_OBJECT

public:
    explicit PropertyPanel(QObject* parent = nullptr);
    ~PropertyPanel() override;

    /// Takes ownership of the editor. Editors are shown, filled and read in the order in which they joined.
    void Join(std::unique_ptr<PropertyEditor> editor);

    /// Fills the lists of all editors.
    void Fill();
    /// Writes each control's slot number into its Tag.
    void Prepare();

    /// A value of the record that no control can show.
    struct Fault {
        qint16 slot;
        Value value;
        RunTimeError error;
    };

    /// Shows the record and clears all marks. A value that does not fit its control (6, 13) is shown as
    /// "various", so that it can be replaced; returns the first one. Anything else that an editor raises is
    /// passed on: some controls may then still show the old record, so show another one.
    std::optional<Fault> Show(const LayerStyle& record);

    /// As Show, but controls that are marked keep the user's values.
    std::optional<Fault> Follow(const LayerStyle& record);

    /// Reads what the controls show into the style; Null for "various". Slots without a control are
    /// unchanged.
    void ReadPanelStyle(LayerStyle& style) const;

    /// The control that edits the slot; nothing if there is none, as for the name and the code.
    std::optional<SlotControl> ControlOf(qint16 slot) const;

    /// As ReadPanelStyle, for storing: Null also for a value that the user did not touch and that its control
    /// would give back changed, such as a fill style that is not in the list.
    void ReadEdits(LayerStyle& style) const;

    /// True if the control that edits the slot is marked as changed.
    bool IsEdited(qint16 slot) const;

    /// True if the control shows a value other than the record's for the slot in its Tag.
    bool ControlValueChanged(const QWidget* control) const;

    /// Underlines the control and describes it as changed to screen readers, or removes both; the value of a
    /// label is read out by the control that edits it. A control that belongs to no editor may be marked too;
    /// Show clears its mark with the others.
    void MarkControlChanged(QWidget* control, bool changed);

    /// Shows all values again after a change of language; edits and their marks stay.
    void Retranslate();

signals:
    /// The user set a control to a value other than the record's. Setting it back is not reported: once
    /// edited, the panel counts as edited until it is shown again.
    void Edited();

private:
    std::optional<Fault> ShowAll(const LayerStyle& record, const LayerStyle& shown);
    void ShowIn(PropertyEditor& editor, LayerStyle& shown, std::optional<Fault>& fault);
    void ShowWhatFits(PropertyEditor& editor, LayerStyle& shown, std::optional<Fault>& fault);
    void ClearMarks();
    void Speak(QWidget& control) const;

    std::vector<std::unique_ptr<PropertyEditor>> m_editors;
    LayerStyle m_record;
    QSet<QWidget*> m_marked;
    QHash<QWidget*, QWidget*> m_speakers; ///< of labels
    bool m_showing = false;
};

} // namespace Orvane
