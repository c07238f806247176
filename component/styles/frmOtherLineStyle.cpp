// SPDX-License-Identifier: MIT
#include "component/styles/frmOtherLineStyle.h"

#include "component/common/Component.h"
#include "component/common/EventGuard.h"
#include "component/common/Messages.h"
#include "component/common/SpinHelpers.h"
#include "component/controls/ScreenPlacement.h"
#include "ui_frmOtherLineStyle.h"

#include <OrvaneShellLib/IShellServices.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QApplication>
#include <QEvent>
#include <QPointer>

#include <cmath>
#include <cstdlib>

namespace Orvane {

namespace {

// Replaces the decimal separator of the user's language with ".", as numbers are read here.
QString WithPoint(QString text)
{
    return text.replace(QLocale().decimalPoint(), QStringLiteral("."));
}

} // namespace

frmOtherLineStyle::frmOtherLineStyle(QWidget* owner)
    : QDialog(owner), m_ui(std::make_unique<Ui::frmOtherLineStyle>())
{
    m_ui->setupUi(this);
    TranslateForm(*this);
    Init();
}

frmOtherLineStyle::~frmOtherLineStyle() = default;

void frmOtherLineStyle::Init()
{
    m_ui->bedThickness->installEventFilter(this);
    m_ui->WidthSpin->SetRange(0, 100);
    m_ui->WidthSpin->SetBoundText(m_ui->bedThickness);
    connect(m_ui->bedThickness, &QLineEdit::textChanged, this, &frmOtherLineStyle::OnTextChanged);
    connect(m_ui->WidthSpin, &OvSpin::Change, this, &frmOtherLineStyle::OnSpinChanged);
    connect(m_ui->optPixels, &QAbstractButton::clicked, this, &frmOtherLineStyle::OnUnitChosen);
    connect(m_ui->optMillimetres, &QAbstractButton::clicked, this, &frmOtherLineStyle::OnUnitChosen);
    connect(m_ui->cmdOK, &QAbstractButton::clicked, this, &frmOtherLineStyle::Confirm);
    connect(m_ui->cmdCancel, &QAbstractButton::clicked, this, &frmOtherLineStyle::reject);
}

bool frmOtherLineStyle::ChooseLineWidth(qint16& thickness, Twips x, Twips y)
{
    if (m_state != State::Closed)
        return false;
    Prepare(thickness);
    Place({x, y});
    m_cancelled = false;
    m_state = State::Open;
    const QPointer self(this);
    try {
        ShellServices().ShowModal(this);
    } catch (...) {
        if (self)
            m_state = State::Closed;
        throw;
    }
    if (!self)
        return false;
    m_state = State::Closed;
    if (m_cancelled)
        return false;
    thickness = EnteredThickness();
    return true;
}

void frmOtherLineStyle::Prepare(qint16 thickness)
{
    m_ui->optMillimetres->setChecked(thickness >= 0);
    m_ui->optPixels->setChecked(thickness < 0);
    m_ui->bedThickness->setText(ToText(qint32(std::abs(int(thickness)))));
    m_ui->lblStored->setMinimumHeight(m_ui->lblStored->fontMetrics().height()); // stays as high when empty
    m_ui->bedThickness->selectAll();
    m_ui->bedThickness->setFocus();
    // Last: showing the width does not count as a change.
    m_ui->cmdOK->setEnabled(false);
}

void frmOtherLineStyle::Place(TwipPoint topLeft)
{
    move(TwipsPerPixelOf(*this).ToPixels(topLeft));
}

// The frame is known only now.
void frmOtherLineStyle::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    move(MovedInside(frameGeometry(), AvailableAreaAt(pos())).topLeft());
}

qint16 frmOtherLineStyle::EnteredThickness() const
{
    const QString text = m_ui->bedThickness->text();
    if (!NumberInText(text))
        throw RunTimeError(ErrorNumber::TypeMismatch, TranslateMsg("'^1' is not a number.", text));
    return m_ui->optMillimetres->isChecked() ? ToInt16(text) : ToInt16(-ToDouble(text));
}

// ---- changes

void frmOtherLineStyle::EnableConfirm()
{
    m_ui->cmdOK->setEnabled(true);
}

void frmOtherLineStyle::OnTextChanged()
{
    GuardEvent(this, [this] { ApplyText(); });
}

void frmOtherLineStyle::ApplyText()
{
    EnableConfirm();
    if (const auto number = NumberInText(m_ui->bedThickness->text())) {
        LimitText(*number);
        SynchroniseSpin(*m_ui->WidthSpin, *m_ui->bedThickness);
    } else if (NumberInText(WithPoint(m_ui->bedThickness->text()))) {
        m_ui->bedThickness->setText(WithPoint(m_ui->bedThickness->text()));
    }
    TellStoredWidth();
}

// Only whole widths are stored: the user should see that before OK.
void frmOtherLineStyle::TellStoredWidth()
{
    m_ui->lblStored->setText(StoredWidthText());
}

QString frmOtherLineStyle::StoredWidthText() const
{
    const auto number = NumberInText(m_ui->bedThickness->text());
    if (!number || *number == std::floor(*number))
        return {};
    const qint32 width = ToInt32(*number);
    if (width == 0)
        return TranslateMsg("The thinnest line will be stored.");
    return m_ui->optPixels->isChecked() ? TranslateMsg("^1 pixels will be stored.", width)
                                        : TranslateMsg("^1 mm will be stored.", width);
}

void frmOtherLineStyle::OnUnitChosen()
{
    GuardEvent(this, [this] {
        EnableConfirm();
        TellStoredWidth();
    });
}

void frmOtherLineStyle::LimitText(double number)
{
    if (number > double(m_ui->WidthSpin->MaxValue()))
        m_ui->bedThickness->setText(ToText(m_ui->WidthSpin->MaxValue()));
    else if (number < 0)
        m_ui->bedThickness->setText(QStringLiteral("0"));
}

void frmOtherLineStyle::OnSpinChanged()
{
    GuardEvent(this, [this] { m_ui->bedThickness->setText(ToText(m_ui->WidthSpin->Value())); });
}

// ---- what the user does with the dialog

void frmOtherLineStyle::Confirm()
{
    const QPointer self(this);
    m_cancelled = false;
    m_state = State::Asking;
    const bool isClosing = GuardEvent(this, [this] { ShellServices().CloseModal(this); });
    if (self && !isClosing)
        m_state = State::Open;
}

void frmOtherLineStyle::reject()
{
    m_cancelled = true;
    const QPointer self(this);
    m_state = State::Asking;
    const bool isClosing = GuardEvent(this, [this] { ShellServices().CloseModal(this); });
    if (self && !isClosing)
        m_state = State::Open;
}

void frmOtherLineStyle::EnterValue()
{
    const QPointer self(this);
    m_state = State::Asking;
    GuardEvent(this, [this] {
        const OvSpin& spin = *m_ui->WidthSpin;
        ShellServices().EnterValue(
            m_ui->bedThickness, EntryKind::Integer, double(spin.MinValue()), double(spin.MaxValue()),
            TranslateMsg("Enter Line Width"));
    });
    if (self)
        m_state = State::Open;
}

bool frmOtherLineStyle::eventFilter(QObject*, QEvent* event)
{
    if (event->type() != QEvent::MouseButtonDblClick)
        return false;
    EnterValue();
    return true;
}

// A menu of this dialog, such as that of the text box, does not count as another window.
bool frmOtherLineStyle::event(QEvent* event)
{
    const bool isHandled = QDialog::event(event);
    if (event->type() == QEvent::WindowDeactivate && m_state == State::Open && isVisible()
        && !QApplication::activePopupWidget())
        reject();
    return isHandled;
}

void frmOtherLineStyle::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        GuardEvent(this, [this] { TranslateForm(*this); });
}

} // namespace Orvane
