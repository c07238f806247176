// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

class QWidget;

namespace Orvane {

/// During its lifetime the program does nothing but paint, and what one window needs: timers fire later,
/// other windows are not closed and take no keys or drops.
class QuietProgram : public QObject
{
public:
    /// speaker: the window that works; not owned.
    explicit QuietProgram(QWidget* speaker);
    ~QuietProgram() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool BelongsToSpeaker(const QObject* object) const;

    QPointer<QWidget> m_speaker;
};

} // namespace Orvane
