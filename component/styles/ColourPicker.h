// SPDX-License-Identifier: MIT
#pragma once

#include "component/styles/PickerList.h"
#include "component/styles/StepOverCommand.h"

#include <OrvaneShellLib/Value.h>

#include <QObject>

namespace Orvane {

/// One colour list: the standard colours, added colours, "Custom Colour..." and, if the layers differ,
/// "[various]".
///
/// Colours are BGR integers; a value with any bit of its top byte set means transparent and is listed as
/// TransparentColour. Members that fill the list or show a value may raise 6 (overflow), 11 (floating-point
/// fault) and 13 (type mismatch).
class ColourPicker : public QObject
{
    Q_OBJECT

public:
    /// What the list contains at first.
    enum class Offer {
        Colours, ///< for lines, which cannot be transparent
        ColoursAndTransparent,
    };

    /// combo: not owned; outlives this object. stylePrefix: the text before each drawing command.
    ColourPicker(OvCombo& combo, const QString& stylePrefix, Offer offer);

    /// Fills the list again; then nothing is selected.
    void BuildColourList();

    /// Adds a colour, at the end or before the item at the position.
    void AddColourItem(qint32 colour, qint32 position = PickerList::AtEnd);

    /// Shows a layer's colour. A colour that is not in the list is added before "Custom Colour..."; Null
    /// shows "[various]", which is in the list only then. The colour dialog starts with this colour.
    void SetColourSelection(const Value& value);
    /// Shows another colour than the layer's, as if the user had chosen it.
    void ShowEdit(const Value& value);

    /// The colour shown; Null for "[various]".
    Value GetSelectedColour() const;

    /// Draws and translates all items again, for another size of the combo box or another language. The items
    /// and the selection stay.
    void Rebuild();

    const PickerList& List() const { return m_list; }

signals:
    /// The list shows another colour, or the same one again; set by the user or by SetColourSelection.
    void Changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    PickerList::ItemTexts ItemOf(qint32 colour) const;
    void FitRows();
    void ShowColour(const Value& value);
    void AddVariousItem();
    void AddBeforeCustom(qint32 colour);
    void OnPicked();
    void ChooseCustomColour();

    PickerList m_list;
    StepOverCommand m_stepOver;
    QString m_stylePrefix;
    Offer m_offer;
    Value m_layerValue = Value::Null();
    Value m_shown = Value::Null();
};

} // namespace Orvane
