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
/// closes it. It never stays open behind another window: losing activation cancels it.
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

    /// Asks for a width and returns true when it was not cancelled. thickness: pixels below 0, millimetres
    /// from 0 on; left as it was when cancelled. x, y: where the upper left corner goes, in screen twips; it
    /// moves by no more than needed to lie on the screen.
    ///
    /// Returns false, without more, while it is open already, and when it is destroyed meanwhile. Raises what
    /// the host raises, and 13 (type mismatch) or 6 (overflow) for a text that is no 16-bit number.
    bool ChooseLineWidth(qint16& thickness, Twips x, Twips y);

    /// Escape and the close button of the window: the same as Cancel.
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
        Asking, ///< a window of its own is in front of it, which may take the activation
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
    void EnableConfirm();

    std::unique_ptr<Ui::frmOtherLineStyle> m_ui;
    State m_state = State::Closed;
    bool m_cancelled = false;
};

} // namespace Orvane
