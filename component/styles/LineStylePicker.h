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

/// The line style list: no line, the thinnest line, four patterns and four widths, widths that were added,
/// "Custom Line Style..." and, where layers differ, "[various]".
///
/// Members that build or show may raise 6 (overflow), 11 (floating-point fault) and 13 (type mismatch).
class LineStylePicker : public QObject
{
    Q_OBJECT

public:
    /// Asks for a line width as frmOtherLineStyle::ChooseLineWidth does.
    using AskLineWidth = std::function<bool(qint16& thickness, Twips x, Twips y)>;

    /// combo: not owned; outlives this object. stylePrefix: what precedes every drawing command.
    LineStylePicker(OvCombo& combo, const QString& stylePrefix, AskLineWidth askLineWidth);

    /// Fills the list anew; nothing is selected then.
    void BuildLineStyleList();

    /// Adds a line, at the end or before the item at the position.
    void AddLineStyleItem(qint16 style, qint16 thickness, qint32 position = PickerList::AtEnd);

    /// Shows a layer's line. One that the list lacks is added before "Custom Line Style...". "[various]" is
    /// shown where either is Null, and for a style of 20 or more, which would read back as a thickness: the
    /// layer then keeps what it has.
    void SetLineStyleSelection(const Value& style, const Value& thickness);

    /// The line shown; both Null for "[various]".
    SelectedLine GetSelectedLineStyle() const;

    /// Draws and words all items anew, for another size of the combo box or another language. What is listed
    /// and selected stays.
    void Rebuild();

    const PickerList& List() const { return m_list; }

signals:
    /// The list shows another line, or the same one anew: by the person or by SetLineStyleSelection.
    void Changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void AddBeforeCustom(const LineItem& line);
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
