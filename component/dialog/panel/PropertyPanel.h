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

/// The property panel: shows one record on the controls of its editors, underlines those that the person set
/// to another value, and reads them all back.
///
///     panel.Join(std::make_unique<FlagEditor>(...));
///     panel.Prepare();
///     panel.Show(record);
///     panel.ReadPanelStyle(style);
///
/// What the person edits lives in the controls; the record is only ever replaced by Show.
class PropertyPanel : public QObject
{
    Q_OBJECT

public:
    explicit PropertyPanel(QObject* parent = nullptr);
    ~PropertyPanel() override;

    /// Takes the editor. Editors are shown, filled and read in the order in which they joined.
    void Join(std::unique_ptr<PropertyEditor> editor);

    /// Fills the lists of all editors.
    void Fill();
    /// Writes each control's slot number into its Tag.
    void Prepare();

    /// Shows the record and clears all marks. When it raises, some controls may show the old record still:
    /// show another one.
    void Show(const LayerStyle& record);

    /// Puts what the controls show into the style; Null for "various". Slots without a control stay.
    void ReadPanelStyle(LayerStyle& style) const;

    /// True when the control shows another value than the record for the slot in its Tag.
    bool ControlValueChanged(const QWidget* control) const;

    /// Underlines the control and has it spoken as changed, or takes both away; the value of a label is
    /// spoken by what edits it. A control that is not one of an editor may be marked too; Show clears it
    /// with the others.
    void MarkControlChanged(QWidget* control, bool changed);

    /// Shows all values anew after a change of language; edits and their marks stay.
    void Retranslate();

signals:
    /// The person set a control to another value than the record's. Setting it back is not announced: once
    /// edited, the panel stays so until it is shown anew.
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
