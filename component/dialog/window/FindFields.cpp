// SPDX-License-Identifier: MIT
#include "component/dialog/window/FindFields.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QWidget>

namespace Orvane {

FindFields::FindFields(
    QWidget& form, LayerTrees& trees, const FindField::Widgets& groups, const FindField::Widgets& layers)
    : m_groups(groups, trees, LayerTrees::List::Groups), m_layers(layers, trees, LayerTrees::List::Layers)
{
    form.installEventFilter(this);
    for (QComboBox* list : form.findChildren<QComboBox*>())
        list->installEventFilter(this); // it would take the key as the start of an entry
}

void FindFields::Retranslate()
{
    m_groups.ShowCount();
    m_layers.ShowCount();
}

// Not a shortcut: it would be ambiguous beside the same one in a host's menu, and then neither would work.
bool FindFields::eventFilter(QObject* watched, QEvent* event)
{
    const bool isKey = event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress;
    FindField* field = isKey ? Shown() : nullptr;
    if (!field || !static_cast<QKeyEvent*>(event)->matches(QKeySequence::Find))
        return QObject::eventFilter(watched, event);
    event->accept();
    if (event->type() == QEvent::KeyPress)
        field->TakeFocus();
    return true;
}

FindField* FindFields::Shown()
{
    if (m_groups.IsShown())
        return &m_groups;
    return m_layers.IsShown() ? &m_layers : nullptr;
}

} // namespace Orvane
