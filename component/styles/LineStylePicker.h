// SPDX-License-Identifier: MIT
#pragma once

#include "component/controls/Twips.h"
#include "component/styles/LineItemData.h"
#include "component/styles/PickerList.h"
#include "component/styles/StepOverCommand.h"
#include "samples/StyleStrings.h"

#include <OrvaneShellLib/Value.h>

#include <QObject>

#include <functional>

namespace Orvane {

/// The line style list: no line, the thinnest line, four patterns and four widths, added widths, "Custom Line
/// Style..." and, if the layers differ, "[various]".
///
/// Members that fill the list or show a value may raise 6 (overflow), 11 (floating-point fault) and 13 (type
/// mismatch).
class LineStylePicker : public QObject
{
    Q_OBJECT

public:
    /// Asks for a line width as frmOtherLineStyle::ChooseLineWidth does.
    using AskLineWidth = std::function<bool(qint16& thickness, Twips x, Twips y)>;

    /// combo: not owned; outlives this object. stylePrefix: the text before each drawing command.
    LineStylePicker(OvCombo& combo, const QString& stylePrefix, AskLineWidth askLineWidth);

    /// Fills the list again; then nothing is selected.
    void BuildLineStyleList();

    /// Adds a line, at the end or before the item at the position.
    void AddLineStyleItem(qint16 style, qint16 thickness, qint32 position = PickerList::AtEnd);

    /// Shows a layer's line. A line that is not in the list is added before "Custom Line Style...".
    /// "[various]" is shown if either value is Null, and for a style of 20 or more, which would be read back
    /// as a thickness: the layer then keeps its values. "[various]" is in the list only then.
    void SetLineStyleSelection(const Value& style, const Value& thickness);
    /// Shows another line than the layer's, as if the user had chosen it.
    void ShowEdit(const Value& style, const Value& thickness);

    /// The line shown; both Null for "[various]".
    SelectedLine GetSelectedLineStyle() const;

    /// Draws and translates all items again, for another size of the combo box or another language. The items
    /// and the selection stay.
    void Rebuild();

    const PickerList& List() const { return m_list; }

signals:
    /// The list shows another line, or the same one again; set by the user or by SetLineStyleSelection.
    void Changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void AddBeforeCustom(const LineItem& line);
    PickerList::ItemTexts ItemOf(const LineItem& line) const;
    QString CustomCaption() const;
    void ShowLayerLine(const Value& style, const Value& thickness);
    void ShowLine(const LineItem& line);
    void ShowVarious();
    void AddVariousItem();
    void OnPicked();
    void ChooseCustomWidth();
    void ShowLayerValue();

    PickerList m_list;
    StepOverCommand m_stepOver;
    QString m_stylePrefix;
    AskLineWidth m_askLineWidth;
    SelectedLine m_layerValue{Value::Null(), Value::Null()};
};

} // namespace Orvane
