// SPDX-License-Identifier: MIT
#pragma once

#include "store/IChangeNews.h"

#include <QStringList>
#include <QWidget>

class QLabel;
class QPushButton;
class QStatusBar;

namespace Orvane {

/// The field of the status bar about a map on a server: who else has it open, and whether the server can be
/// reached, with a button to try again. Hidden when there is nothing to tell.
class SharingStatus : public QWidget
{
    Q_OBJECT
public:
    /// Adds itself to the bar, which owns it.
    explicit SharingStatus(QStatusBar& bar);

    /// users: the names of the others.
    void Show(const QStringList& users, IChangeNews::Link link);
    void ShowNothing() { hide(); }

signals:
    /// The user wants the server to be tried at once.
    void TryAgainWanted();

private:
    void ShowUsers(const QStringList& users);
    void ShowText(const QString& text, const QString& words);

    QLabel* m_text; // owned by this object, as the button
    QPushButton* m_try;
};

} // namespace Orvane
