// SPDX-License-Identifier: MIT
#include "component/controls/frmDropSlider.h"

#include "component/common/EventGuard.h"
#include "component/common/Messages.h"
#include "component/controls/ClickWatcher.h"
#include "component/controls/ITypedNumbers.h"
#include "component/controls/IUITranslator.h"
#include "component/controls/NumberTyping.h"
#include "component/controls/ScreenPlacement.h"
#include "ui_frmDropSlider.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <QPointer>

#include <cmath>
#include <utility>

namespace Orvane {

namespace {

constexpr Qt::WindowFlags popupFlags = Qt::Dialog | Qt::FramelessWindowHint;

} // namespace

frmDropSlider::frmDropSlider(QWidget* owner)
    : QDialog(owner, popupFlags), m_ui(std::make_unique<Ui::frmDropSlider>())
{
    m_ui->setupUi(this);
    TranslateForm(*this);
    Init();
}

frmDropSlider::~frmDropSlider() = default;

void frmDropSlider::Init()
{
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmDropSlider::OnConfirm);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &QWidget::hide);
    connect(m_ui->chkVarious, &QCheckBox::toggled, this, &frmDropSlider::OnVariousToggled);
    connect(m_ui->sldValue, &QSlider::valueChanged, this, &frmDropSlider::OnSliderChanged);
    // Also emitted if the slider is at its end and the value stays.
    connect(m_ui->sldValue, &QSlider::actionTriggered, this, &frmDropSlider::OnSliderChanged);
    connect(new ClickWatcher(m_ui->sldValue), &ClickWatcher::Clicked, this, &frmDropSlider::OnSliderClicked);
    connect(m_ui->cmdMapNumber, &QPushButton::clicked, this, &frmDropSlider::OnMapNumberClicked);
    m_ui->cmdMapNumber->hide();
    m_typing = new NumberTyping(*this);
    connect(m_typing, &NumberTyping::TextWanted, this, &frmDropSlider::ShowText);
    connect(m_typing, &NumberTyping::ValueWanted, this, &frmDropSlider::RefreshLabel);
    connect(m_typing, &NumberTyping::Typed, this, &frmDropSlider::GoTo);
}

bool frmDropSlider::Popup(
    QWidget* owner, const IUITranslator& translator, Twips x, Twips y, const QString&, Value& value,
    const Value& defaultValue, qint32 minimum, qint32 maximum, bool allowVarious)
{
    if (isVisible())
        return false;
    SetOwner(owner);
    // Each change of a control calls its handler, so the order determines the label and the value.
    m_translator = &translator;
    m_failure = nullptr;
    m_ui->sldValue->setMinimum(minimum);
    m_ui->sldValue->setMaximum(maximum);
    m_currentValue = value;
    m_ui->chkVarious->setEnabled(allowVarious);
    ShowValue(defaultValue);
    BeginTyping(minimum, maximum);
    m_topRight = {x, y};
    Place();
    m_confirmed = false;
    m_ui->sldValue->setFocus();
    const QPointer self(this);
    exec();
    if (!self)
        return false;
    m_typing->Begin(nullptr, 0, 0);
    if (!m_confirmed)
        return false;
    value = m_ui->chkVarious->isChecked() ? Value::Null() : Value(qint32(m_ui->sldValue->value()));
    return true;
}

void frmDropSlider::SetOwner(QWidget* owner)
{
    QWidget* window = owner ? owner->window() : nullptr;
    if (window != parentWidget())
        setParent(window, popupFlags);
}

void frmDropSlider::ShowValue(const Value& defaultValue)
{
    if (m_currentValue.IsNull()) {
        m_ui->sldValue->setValue(ToInt32(defaultValue));
        m_ui->chkVarious->setChecked(true);
    } else {
        const qint32 position = ToInt32(m_currentValue);
        m_ui->chkVarious->setChecked(false);
        m_ui->sldValue->setValue(position);
    }
    RaiseFailure();
    // If neither control has changed, the label still shows a text from the translator of the last popup.
    TakeSliderOrNull();
}

void frmDropSlider::BeginTyping(qint32 minimum, qint32 maximum)
{
    const auto* numbers = dynamic_cast<const ITypedNumbers*>(m_translator);
    m_typing->Begin(numbers, minimum, maximum);
    OfferMapNumber(numbers, minimum, maximum);
}

void frmDropSlider::OfferMapNumber(const ITypedNumbers* numbers, qint32 minimum, qint32 maximum)
{
    const std::optional<ITypedNumbers::MapNumber> map
        = numbers ? numbers->NumberOfMap(minimum, maximum) : std::nullopt;
    m_ui->cmdMapNumber->setVisible(map.has_value());
    if (!map)
        return;
    const QString number = numbers->NumberText(ToText(Value(std::round(map->number))));
    m_mapPosition = map->position;
    m_ui->cmdMapNumber->setEnabled(m_mapPosition.has_value());
    m_ui->cmdMapNumber->setText(TranslateMsg("&Map's Scale (^1)", number));
}

void frmDropSlider::TakeSliderOrNull()
{
    m_currentValue = m_ui->chkVarious->isChecked() ? Value::Null() : Value(qint32(m_ui->sldValue->value()));
    RefreshLabel();
}

void frmDropSlider::RefreshLabel()
{
    ShowText(m_translator->toString(m_currentValue));
}

void frmDropSlider::ShowText(const QString& text)
{
    m_ui->lblValue->setText(text);
    m_ui->sldValue->setAccessibleDescription(text);
    if (isVisible())
        Place();
}

// While it is open it only grows: a form that changes its width at each step of the slider is hard to look
// at.
void frmDropSlider::Place()
{
    // From the inside out, so that a new label text reaches the size hint and the smallest size of the form.
    m_ui->valueLayout->activate();
    m_ui->formLayout->activate();
    const QSize size = isVisible() ? sizeHint().expandedTo(this->size()) : sizeHint();
    const TwipsPerPixel scale = TwipsPerPixelOf(*this);
    const QPoint topRight = scale.ToPixels(m_topRight);
    const QPoint topLeft
        = scale.ToPixels(TwipPoint{m_topRight.x - scale.WidthToTwips(size.width()), m_topRight.y});
    setGeometry(MovedInside(QRect(topLeft, size), AvailableAreaAt(topRight)));
}

void frmDropSlider::OnConfirm()
{
    Handle([this] {
        if (m_ui->cmdMapNumber->isDown())
            OnMapNumberClicked();
        if (!m_typing->Settle())
            return;
        m_confirmed = true;
        hide();
    });
}

// While it is open, errors are shown to the user. Before that, they are kept and raised later to the caller.
void frmDropSlider::Handle(const std::function<void()>& act)
{
    if (isVisible()) {
        GuardEvent(this, act);
        return;
    }
    try {
        act();
    } catch (...) {
        if (!m_failure)
            m_failure = std::current_exception();
    }
}

void frmDropSlider::RaiseFailure()
{
    if (const std::exception_ptr failure = std::exchange(m_failure, nullptr))
        std::rethrow_exception(failure);
}

void frmDropSlider::OnVariousToggled()
{
    Handle([this] { TakeSliderOrNull(); });
}

void frmDropSlider::OnSliderChanged()
{
    Handle([this] {
        m_typing->Forget();
        m_currentValue = qint32(m_ui->sldValue->value());
        m_ui->chkVarious->setChecked(false);
        RefreshLabel();
    });
}

void frmDropSlider::OnSliderClicked()
{
    m_ui->chkVarious->setChecked(false);
}

// Enter then confirms it. The button's key presses it for a moment: Enter, or Escape, may come before its
// click.
void frmDropSlider::OnMapNumberClicked()
{
    if (!isVisible() || !m_mapPosition)
        return;
    GoTo(*m_mapPosition);
    m_ui->sldValue->setFocus();
}

void frmDropSlider::GoTo(qint32 position)
{
    m_ui->sldValue->setValue(position);
    OnSliderChanged(); // also if the slider was there already
}

} // namespace Orvane
