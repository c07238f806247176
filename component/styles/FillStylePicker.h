// SPDX-License-Identifier: MIT
#pragma once

#include "component/styles/FillPictures.h"
#include "component/styles/PickerList.h"
#include "samples/FillSample.h"

#include <OrvaneShellLib/Value.h>

#include <QObject>

#include <functional>

class QPainter;
class QRect;

namespace Orvane {

/// The fill style list: solid, hollow and 30 patterns, each painted in the colours of the layer, and
/// "[various]" where layers differ.
class FillStylePicker : public QObject
{
    Q_OBJECT

public:
    /// Answers the colours that the samples are painted with.
    using ReadColours = std::function<FillColours()>;

    /// combo: not owned; outlives this object. stylePrefix: what precedes every drawing command.
    FillStylePicker(OvCombo& combo, const QString& stylePrefix, ReadColours colours);

    /// Fills the list anew and asks the host for the patterns; nothing is selected then. Raises what the
    /// host's FillPattern raises.
    void BuildFillStyleList();

    /// Shows a layer's fill style; Null as "[various]". For a style that the list lacks the first item is
    /// shown, and the person is told as soon as the event loop runs. Raises 13 (type mismatch) or 6
    /// (overflow).
    void SetFillStyleSelection(const Value& value);

    /// The fill style shown; Null for "[various]".
    Value GetSelectedFillStyle() const;

    /// Words the items anew; what is selected stays.
    void Rebuild();

    /// Paints the sample of the closed list anew, in the colours of the moment.
    void RepaintSamples();

    const PickerList& List() const { return m_list; }

signals:
    /// The list shows another style, or the same one anew: by the person or by SetFillStyleSelection.
    void Changed();

private:
    void AddFillStyleItem(qint16 style);
    void LoadPicture(qint16 style);
    void AddVariousItem();
    void PaintItem(QPainter& painter, int index, const QRect& item);
    void ReportUnknownStyle();

    PickerList m_list;
    QString m_stylePrefix;
    ReadColours m_colours;
    FillPictures m_pictures;
};

} // namespace Orvane
