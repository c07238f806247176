// SPDX-License-Identifier: MIT
#pragma once

#include <QTextDocument>
#include <QWidget>

class QLabel;
class QLineEdit;
class QTextBrowser;

namespace Orvane {

/// A field that finds words in the page of the guide while they are typed. Ctrl+F goes to it from everywhere
/// in its window, Enter and F3 go to the next place, Shift+F3 to the one before; after the last place comes
/// the first one. Escape clears the field and goes back to the page.
class GuideFind : public QWidget
{
    Q_OBJECT
public:
    /// browser: not owned; in the same window.
    GuideFind(QTextBrowser& browser, QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void AddKey(const QKeySequence& key, void (GuideFind::*command)());
    void Enter();
    void FindTyped();
    void FindNext();
    void FindPrevious();
    // True if the words are in the page.
    bool Find(QTextDocument::FindFlags direction);
    void Show(bool isFound);
    void Leave();

    QTextBrowser& m_browser;
    QLineEdit* m_words; // both owned by this widget
    QLabel* m_answer;
};

} // namespace Orvane
