// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QtGlobal>

#include <array>

class QToolButton;
class QWidget;

namespace Orvane {

/// The toolbar mstbQuickMode: "Normal", "Backdrop" and "Hidden". A click leaves exactly one of them pressed.
///
/// A quick mode is a set of bits, 1 normal, 2 backdrop, 4 hidden; 0, "various", shows no button pressed.
class QuickModeToolbar : public QObject
{
    Q_OBJECT

public:
    /// buttons: in the order of their bits, checkable. bar and buttons: not owned.
    QuickModeToolbar(QWidget& bar, const std::array<QToolButton*, 3>& buttons, QObject* parent = nullptr);

    /// Shows or hides the buttons: some hosts have no quick modes.
    void SetAllowed(bool allowed);
    void SetEnabled(bool enabled);

    /// Presses the buttons of the mode's bits. A later click is compared with this mode.
    void ShowMode(qint16 mode);
    /// As ShowMode, but a mode that the user has chosen meanwhile stays pressed.
    void FollowMode(qint16 mode);
    /// True if the buttons show another mode than the one shown or followed last.
    bool IsEdited() const { return ReadMode() != m_shownMode; }
    /// The bits of the buttons that are pressed.
    qint16 ReadMode() const;

    /// Draws the buttons' images again, for another palette or size. A button whose own palette changes, for
    /// example by a style sheet, gets its image again by itself.
    void RefreshImages();

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// A click chose a mode other than the one shown last.
    void Edited();

private:
    void Press(qint16 mode);
    void OnClicked(const QToolButton* clicked);

    QWidget& m_bar;
    std::array<QToolButton*, 3> m_buttons;
    qint16 m_shownMode = 0;
};

} // namespace Orvane
