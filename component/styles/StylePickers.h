// SPDX-License-Identifier: MIT
#pragma once

#include "component/styles/ColourPicker.h"
#include "component/styles/FillStylePicker.h"
#include "component/styles/LineStylePicker.h"

#include <QObject>
#include <QPointer>

#include <array>
#include <memory>

namespace Orvane {

class frmOtherLineStyle;

/// The five pickers of the property panel, which show one another's colours.
class StylePickers : public QObject
{
    Q_OBJECT

public:
    static constexpr int ColourCount = 3;

    struct Lists {
        std::array<OvCombo*, ColourCount> cmbColor; ///< line colour, fill foreground, fill background
        OvCombo* cmbFillStyles;
        OvCombo* cmbLineStyles;
    };

    /// lists: not owned; outlive this object. stylePrefix: the host's StyleCommandPrefix.
    StylePickers(const Lists& lists, const QString& stylePrefix);
    ~StylePickers() override;

    /// Fills all lists again; then nothing is selected. Raises what the host raises.
    void Build();
    /// Translates all items again after a change of language; the items and the selections stay.
    void Rebuild();

    /// index: 0 line colour, 1 fill foreground, 2 fill background. Raises 9 (subscript out of range) for any
    /// other.
    ColourPicker& Colour(int index) const;
    FillStylePicker& FillStyles() { return m_fillStyles; }
    const FillStylePicker& FillStyles() const { return m_fillStyles; }
    LineStylePicker& LineStyles() { return m_lineStyles; }
    const LineStylePicker& LineStyles() const { return m_lineStyles; }

signals:
    /// A picker shows another value, or the same one again.
    void Changed(OvCombo* list);

private:
    FillColours SampleColours() const;
    bool AskLineWidth(qint16& thickness, Twips x, Twips y);

    std::array<std::unique_ptr<ColourPicker>, ColourCount> m_colours;
    FillStylePicker m_fillStyles;
    LineStylePicker m_lineStyles;
    QPointer<frmOtherLineStyle> m_lineWidthDialog; // owned by the window of the lists
};

} // namespace Orvane
