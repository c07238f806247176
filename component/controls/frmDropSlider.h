// SPDX-License-Identifier: MIT
#pragma once

#include "component/controls/Twips.h"

#include <OrvaneShellLib/Value.h>

#include <QDialog>

#include <exception>
#include <functional>
#include <memory>
#include <optional>

namespace Orvane {

namespace Ui {
class frmDropSlider;
}

class ITypedNumbers;
class IUITranslator;
class NumberTyping;

/// The popup that edits one whole number with a slider. It stays loaded: Popup shows and hides it any number
/// of times, and its controls keep their state.
///
///     const TwipPoint anchor = PopupAnchor(*cmdEditPriority);
///     if (slider->Popup(this, priorities, anchor.x, anchor.y, title, value, 1, 1, 255, isVarious))
///         lblPriority->setText(priorities.toString(value));
///
/// The current value is Null while "Various" is checked, else the slider's value. The label shows it through
/// the translator. As every child window, the form belongs to the window of its last owner.
///
/// If the translator implements ITypedNumbers, the user can also type the number, and take that of the host's
/// map.
class frmDropSlider : public QDialog
{
    Q_OBJECT

public:
    explicit frmDropSlider(QWidget* owner = nullptr);
    ~frmDropSlider() override;

    /// Edits the value in a modal popup and returns true if the user pressed OK. Then value is Null for
    /// "Various", else a 32-bit integer; otherwise it is unchanged.
    ///
    /// owner: the form in front of which it is shown; may be nullptr. x, y: the position of its right and top
    /// edges in screen twips; it moves left or up if it would leave the screen. caption: not used, the popup
    /// keeps its own title. defaultValue: where the slider starts if value is Null. minimum, maximum: the
    /// slider's range, to which values are clamped. allowVarious: whether the user may choose "Various".
    ///
    /// Raises 13 (type mismatch) or 6 (overflow), without showing anything, if value or defaultValue is not a
    /// 32-bit integer. Returns false at once if it is already open. Also returns false if the form is
    /// destroyed meanwhile: the owner may then be destroyed too.
    bool Popup(
        QWidget* owner, const IUITranslator& translator, Twips x, Twips y, const QString& caption,
        Value& value, const Value& defaultValue, qint32 minimum, qint32 maximum, bool allowVarious);

private:
    void Init();
    void SetOwner(QWidget* owner);
    void ShowValue(const Value& defaultValue);
    void BeginTyping(qint32 minimum, qint32 maximum);
    void OfferMapNumber(const ITypedNumbers* numbers, qint32 minimum, qint32 maximum);
    void TakeSliderOrNull();
    void RefreshLabel();
    void ShowText(const QString& text);
    void Place();
    void OnConfirm();
    void Handle(const std::function<void()>& act);
    void RaiseFailure();
    void OnVariousToggled();
    void OnSliderChanged();
    void OnSliderClicked();
    void OnMapNumberClicked();
    void GoTo(qint32 position);

    std::unique_ptr<Ui::frmDropSlider> m_ui;
    NumberTyping* m_typing = nullptr; // a child
    std::optional<qint32> m_mapPosition; // of the number that the map has
    const IUITranslator* m_translator = nullptr; // of the last Popup; not owned, may be gone between popups
    Value m_currentValue;
    TwipPoint m_topRight;
    bool m_confirmed = false;
    std::exception_ptr m_failure; // raised by a handler while Popup prepares the controls
};

} // namespace Orvane
