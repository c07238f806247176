// SPDX-License-Identifier: MIT
#include "component/dialog/showing/ShownBar.h"

#include "component/common/Messages.h"

#include <QAccessible>
#include <QBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QToolButton>
#include <QTreeView>

namespace Orvane {

namespace {

QString CountText(const ShownCount& count)
{
    const QLocale locale;
    if (count.shown == 0)
        return TranslateMsg("No layer is shown.");
    if (count.shown == 1)
        return TranslateMsg("Only 1 of ^1 layers is shown.", locale.toString(count.all));
    return TranslateMsg(
        "Only ^1 of ^2 layers are shown.", locale.toString(count.shown), locale.toString(count.all));
}

} // namespace

ShownBar::ShownBar(QTreeView& view) : m_view(view), m_label(new QLabel), m_button(new QToolButton)
{
    setObjectName(view.objectName() + QStringLiteral("_shown"));
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::AlternateBase);
    m_label->setWordWrap(true);
    m_label->setForegroundRole(QPalette::Text);
    m_label->setTextFormat(Qt::PlainText);
    m_button->setFocusPolicy(Qt::StrongFocus);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(4, 1, 1, 1);
    row->addWidget(m_label, 1);
    row->addWidget(m_button);
    auto* layout = qobject_cast<QBoxLayout*>(view.parentWidget()->layout());
    layout->insertWidget(layout->indexOf(&view), this);
    QWidget::setTabOrder(&view, m_button);
    connect(m_button, &QAbstractButton::clicked, this, &ShownBar::ShowAllRequested);
    hide();
}

void ShownBar::ShowCount(const ShownCount& count)
{
    const QString text = CountText(count);
    const bool isNew = isHidden() || m_label->text() != text;
    m_label->setText(text);
    m_button->setText(TranslateMsg("Show All Again"));
    m_button->setAccessibleDescription(text);
    show();
    if (!isNew || !isVisible())
        return;
    QAccessibleEvent told(m_label, QAccessible::Alert);
    QAccessible::updateAccessibility(&told);
}

void ShownBar::ShowNothing()
{
    if (window()->focusWidget() == m_button)
        m_view.setFocus();
    hide();
}

} // namespace Orvane
