// SPDX-License-Identifier: MIT
#include "component/dialog/panel/RendererStyleEditor.h"

#include "component/common/EventGuard.h"
#include "component/common/ListHelpers.h"
#include "component/common/Messages.h"
#include "component/model/LayerStyle.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <QComboBox>

namespace Orvane {

RendererStyleEditor::RendererStyleEditor(QComboBox& list) : m_list(list)
{
    connect(&list, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this] {
        GuardEvent(m_list.window(), [this] { NotifyChanged(&m_list); });
    });
}

void RendererStyleEditor::FillStyles(const std::vector<RendererStyle>& styles)
{
    m_list.clear();
    m_list.setPlaceholderText(QStringLiteral(" ")); // without one Qt would select the first entry
    m_list.addItem(TranslateMsg("Standard"), 0);
    for (const RendererStyle& style : styles)
        m_list.addItem(style.name, style.number);
    m_list.setCurrentIndex(-1);
}

Value RendererStyleEditor::SelectedStyle() const
{
    if (m_list.currentIndex() < 0)
        return Value::Null();
    return qint32(m_list.currentData().toInt());
}

std::vector<SlotControl> RendererStyleEditor::Controls() const
{
    return {{Slot::RendererStyle, &m_list}};
}

void RendererStyleEditor::Show(const LayerStyle&, const LayerStyle& shown)
{
    const Value style = shown.lsGet(Slot::RendererStyle);
    m_showsVarious = style.IsNull();
    // Never empty, for the same reason.
    m_list.setPlaceholderText(m_showsVarious ? TranslateMsg("various") : ToText(style));
    m_list.setCurrentIndex(m_showsVarious ? -1 : FindByItemData(m_list, ToInt32(style)));
}

void RendererStyleEditor::Read(LayerStyle& style) const
{
    style.lsSet(Slot::RendererStyle, SelectedStyle());
}

void RendererStyleEditor::Retranslate()
{
    if (m_list.count() > 0)
        m_list.setItemText(0, TranslateMsg("Standard"));
    if (m_showsVarious)
        m_list.setPlaceholderText(TranslateMsg("various"));
}

} // namespace Orvane
