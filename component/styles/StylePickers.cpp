// SPDX-License-Identifier: MIT
#include "component/styles/StylePickers.h"

#include "component/styles/frmOtherLineStyle.h"
#include "ovctrls/OvCombo.h"

#include <OrvaneShellLib/RunTimeError.h>

namespace Orvane {

namespace {

constexpr int line = 0;
constexpr int fillFore = 1;
constexpr int fillBack = 2;

qint32 ColourOf(const ColourPicker& picker)
{
    const Value colour = picker.GetSelectedColour();
    return colour.IsNull() ? 0 : *colour.Get<qint32>();
}

} // namespace

StylePickers::StylePickers(const Lists& lists, const QString& stylePrefix)
    : m_fillStyles(*lists.cmbFillStyles, stylePrefix, [this] { return SampleColours(); }),
      m_lineStyles(*lists.cmbLineStyles, stylePrefix, [this](qint16& thickness, Twips x, Twips y) {
          return AskLineWidth(thickness, x, y);
      })
{
    for (int index = line; index < ColourCount; ++index) {
        OvCombo* list = lists.cmbColor[size_t(index)];
        const auto offer
            = index == line ? ColourPicker::Offer::Colours : ColourPicker::Offer::ColoursAndTransparent;
        auto& picker = m_colours[size_t(index)];
        picker = std::make_unique<ColourPicker>(*list, stylePrefix, offer);
        connect(picker.get(), &ColourPicker::Changed, this, [this, list] {
            m_fillStyles.FollowColours();
            emit Changed(list);
        });
    }
    connect(&m_fillStyles, &FillStylePicker::Changed, this, [this, list = lists.cmbFillStyles] {
        emit Changed(list);
    });
    connect(&m_lineStyles, &LineStylePicker::Changed, this, [this, list = lists.cmbLineStyles] {
        emit Changed(list);
    });
}

StylePickers::~StylePickers() = default;

void StylePickers::Build()
{
    for (const auto& picker : m_colours)
        picker->BuildColourList();
    m_fillStyles.BuildFillStyleList();
    m_lineStyles.BuildLineStyleList();
}

void StylePickers::Rebuild()
{
    for (const auto& picker : m_colours)
        picker->Rebuild();
    m_fillStyles.Rebuild();
    m_lineStyles.Rebuild();
}

ColourPicker& StylePickers::Colour(int index) const
{
    if (index < 0 || index >= ColourCount)
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange, QStringLiteral("Subscript out of range"));
    return *m_colours[size_t(index)];
}

FillColours StylePickers::SampleColours() const
{
    return {ColourOf(Colour(line)), ColourOf(Colour(fillFore)), ColourOf(Colour(fillBack))};
}

bool StylePickers::AskLineWidth(qint16& thickness, Twips x, Twips y)
{
    if (!m_lineWidthDialog)
        m_lineWidthDialog = new frmOtherLineStyle(m_lineStyles.List().Combo().window());
    return m_lineWidthDialog->ChooseLineWidth(thickness, x, y);
}

} // namespace Orvane
