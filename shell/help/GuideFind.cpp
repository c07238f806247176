// SPDX-License-Identifier: MIT
#include "shell/help/GuideFind.h"

#include "mapkit/common/Guard.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QTextBrowser>

namespace Orvane {

GuideFind::GuideFind(QTextBrowser& browser, QWidget* parent)
    : QWidget(parent), m_browser(browser), m_words(new QLineEdit(this)), m_answer(new QLabel(this))
{
    m_words->setObjectName(QStringLiteral("edtFind"));
    m_words->setClearButtonEnabled(true);
    m_answer->setObjectName(QStringLiteral("lblFound"));
    auto* caption = new QLabel(tr("&Find:"), this);
    caption->setBuddy(m_words);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_answer);
    row->addSpacing(caption->fontMetrics().averageCharWidth());
    row->addWidget(caption);
    row->addWidget(m_words);
    connect(m_words, &QLineEdit::textChanged, this, [this] { Guard(window(), [this] { FindTyped(); }); });
    connect(m_words, &QLineEdit::returnPressed, this, [this] { Guard(window(), [this] { FindNext(); }); });
    AddKey(QKeySequence::Find, &GuideFind::Enter);
    AddKey(QKeySequence(Qt::Key_F3), &GuideFind::FindNext);
    AddKey(QKeySequence(Qt::SHIFT | Qt::Key_F3), &GuideFind::FindPrevious);
}

void GuideFind::AddKey(const QKeySequence& key, void (GuideFind::*command)())
{
    connect(new QShortcut(key, window()), &QShortcut::activated, this, [this, command] {
        Guard(window(), [&] { (this->*command)(); });
    });
}

void GuideFind::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        Leave();
    else
        QWidget::keyPressEvent(event);
}

void GuideFind::Enter()
{
    m_words->setFocus(Qt::ShortcutFocusReason);
    m_words->selectAll();
}

// From the beginning of what was found, so that a longer word is found at the same place.
void GuideFind::FindTyped()
{
    QTextCursor cursor = m_browser.textCursor();
    cursor.setPosition(cursor.selectionStart());
    m_browser.setTextCursor(cursor);
    FindNext();
}

void GuideFind::FindNext()
{
    Show(Find({}));
}

void GuideFind::FindPrevious()
{
    Show(Find(QTextDocument::FindBackward));
}

bool GuideFind::Find(QTextDocument::FindFlags direction)
{
    const QString words = m_words->text();
    if (words.isEmpty() || m_browser.find(words, direction))
        return true;
    const QTextCursor before = m_browser.textCursor();
    m_browser.moveCursor(direction ? QTextCursor::End : QTextCursor::Start);
    if (m_browser.find(words, direction))
        return true;
    m_browser.setTextCursor(before);
    return false;
}

void GuideFind::Show(bool isFound)
{
    m_answer->setText(isFound ? QString() : tr("Not found"));
}

void GuideFind::Leave()
{
    m_words->clear();
    m_browser.setFocus();
}

} // namespace Orvane
