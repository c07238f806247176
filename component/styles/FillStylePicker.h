// SPDX-License-Identifier: MIT
#pragma once

#include "component/styles/FillPictures.h"
#include "component/styles/PickerList.h"
#include "samples/FillSample.h"

#include <OrvaneShellLib/Value.h>

#include <QObject>

#include <functional>
#include <optional>

class QPainter;
class QRect;

namespace Orvane {

/// The fill style list: solid, hollow and 30 patterns, each painted in the colours of the layer, and, if the
/// layers differ, "[various]".
class FillStylePicker : public QObject
{
    Q_OBJECT

public:
    /// Returns the colours with which the samples are painted.
    using ReadColours = std::function<FillColours()>;

    /// combo: not owned; outlives this object. stylePrefix: the text before each drawing command.
    FillStylePicker(OvCombo& combo, const QString& stylePrefix, ReadColours colours);

    /// Fills the list again and asks the host for the patterns; then nothing is selected. Raises what the
    /// host's FillPattern raises.
    void BuildFillStyleList();

    /// Shows a layer's fill style; Null shows "[various]", which is in the list only then. For a style that
    /// is not in the list, the first item is shown, and the user gets a message as soon as the event loop
    /// runs. Raises 13 (type mismatch) or 6 (overflow).
    void SetFillStyleSelection(const Value& value);
    /// Shows another fill style than the layer's, as if the user had chosen it.
    void ShowEdit(const Value& value);

    /// The fill style shown; Null for "[various]".
    Value GetSelectedFillStyle() const;

    /// Translates the items again; the selection stays.
    void Rebuild();

    /// Paints the sample of the closed list again if the colours have changed since.
    void FollowColours();

    const PickerList& List() const { return m_list; }

signals:
    /// The list shows another style, or the same one again; set by the user or by SetFillStyleSelection.
    void Changed();

private:
    void AddFillStyleItem(qint16 style);
    PickerList::ItemTexts ItemOf(qint32 style) const;
    void FitRows();
    bool ShowStyle(const Value& value);
    void LoadPicture(qint16 style);
    void AddVariousItem();
    void PaintItem(QPainter& painter, int index, const QRect& item);
    void ReportUnknownStyle();

    PickerList m_list;
    QString m_stylePrefix;
    ReadColours m_colours;
    FillPictures m_pictures;
    std::optional<FillColours> m_painted; ///< the colours of the sample in the closed list
};

} // namespace Orvane
