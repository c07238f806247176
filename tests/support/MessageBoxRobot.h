// SPDX-License-Identifier: MIT
#pragma once

#include <QMessageBox>
#include <QObject>
#include <QString>
#include <QStringList>

#include <deque>
#include <functional>
#include <initializer_list>
#include <vector>

namespace Orvane::Testing {

/// The keys that answer a message box.
enum class BoxKey { Enter, Escape, Yes, No };

/// A message box as it was shown.
struct SeenBox {
    QString title;
    QString text;
    QMessageBox::Icon icon;
    QStringList buttons; ///< their texts, in the order of the box
    QString defaultButton;
    Qt::TextFormat format;
    QWidget* owner;
};

/// Answers the message boxes that open during its lifetime, in turn, and records them. A box without a
/// planned answer gets Escape and fails the test; an unused planned answer fails it too.
///
///     MessageBoxRobot user{BoxKey::No};
///     ...
///     EXPECT_EQ(user.Only().text, "Delete layer scheme 'Roads'?");
class MessageBoxRobot : public QObject
{
    Q_OBJECT

public:
    MessageBoxRobot(std::initializer_list<BoxKey> answers);
    ~MessageBoxRobot() override;

    const std::vector<SeenBox>& Boxes() const { return m_boxes; }
    /// The one box that opened; fails the test when there were none or several.
    SeenBox Only() const;
    /// Runs before each answer, while the box is open.
    void BeforeAnswer(std::function<void(QMessageBox&)> action) { m_beforeAnswer = std::move(action); }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Answer(QMessageBox& box);

    std::deque<BoxKey> m_answers;
    std::vector<SeenBox> m_boxes;
    std::function<void(QMessageBox&)> m_beforeAnswer;
};

} // namespace Orvane::Testing
