// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/panel/PropertyEditor.h"
#include "component/model/LayerStyle.h"

#include <QHash>
#include <QObject>
#include <QSet>

#include <memory>
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

    /// Shows the record and clears all marks. If it raises, some controls may still show the old record: then
    /// show another one.
    void Show(const LayerStyle& record);

    /// Reads what the controls show into the style; Null for "various". Slots without a control are
    /// unchanged.
    void ReadPanelStyle(LayerStyle& style) const;

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
    void ClearMarks();
    void Speak(QWidget& control) const;

    std::vector<std::unique_ptr<PropertyEditor>> m_editors;
    LayerStyle m_record;
    QSet<QWidget*> m_marked;
    QHash<QWidget*, QWidget*> m_speakers; ///< of labels
    bool m_showing = false;
};

} // namespace Orvane
