// SPDX-License-Identifier: MIT
#pragma once

#include "component/controls/Twips.h"

#include <QDialog>

#include <memory>

namespace Orvane {

namespace Ui {
class frmOtherLineStyle;
}

/// The small dialog that asks for the width of a solid line, in pixels or millimetres. The host shows and
/// closes it. It does not stay open when another window is activated: losing activation cancels it.
///
///     qint16 thickness = 0;
///     if (dialog.ChooseLineWidth(thickness, x, y))
///         picker.AddLineStyleItem(0, thickness);
class frmOtherLineStyle : public QDialog
{
    Q_OBJECT

public:
    explicit frmOtherLineStyle(QWidget* owner = nullptr);
    ~frmOtherLineStyle() override;

    /// Asks for a width and returns true unless the user cancelled. thickness: pixels below 0, millimetres
    /// from 0 upwards; unchanged if cancelled. x, y: the position of the upper left corner in screen twips;
    /// it moves no more than needed to lie on the screen.
    ///
    /// Returns false at once if it is already open, and false if it is destroyed meanwhile. Raises what the
    /// host raises, and 13 (type mismatch) or 6 (overflow) for a text that is not a 16-bit number.
    bool ChooseLineWidth(qint16& thickness, Twips x, Twips y);

    /// Escape and the close button of the window do the same as Cancel.
    void reject() override;

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class State {
        Closed,
        Open,
        Asking, ///< a window opened by this dialog is in front of it and may take the activation
    };

    void Init();
    void Prepare(qint16 thickness);
    void Place(TwipPoint topLeft);
    qint16 EnteredThickness() const;
    void Confirm();
    void EnterValue();
    void OnTextChanged();
    void ApplyText();
    void LimitText(double number);
    void OnSpinChanged();
    void OnUnitChosen();
    void TellStoredWidth();
    QString StoredWidthText() const;
    void EnableConfirm();

    std::unique_ptr<Ui::frmOtherLineStyle> m_ui;
    State m_state = State::Closed;
    bool m_cancelled = false;
};

} // namespace Orvane
