// SPDX-License-Identifier: MIT
#include "hostkit/windows/TextPrompt.h"

#include "ui_TextPrompt.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <QPushButton>
#include <QScreen>

#include <algorithm>
#include <cmath>
#include <limits>

namespace Orvane {

namespace {

constexpr int UsualWidth = 24; // average characters

bool IsWholeNumberWithin(const QString& text, double minimum, double maximum)
{
    const std::optional<double> number = NumberInText(text);
    return number && *number == std::trunc(*number) && *number >= minimum && *number <= maximum;
}

int Within(int wanted, int lowest, int highest)
{
    return std::max(lowest, std::min(wanted, highest));
}

} // namespace

TextPrompt::TextPrompt(const PromptRequest& request, QWidget* parent)
    : QDialog(parent), m_request(request), m_ui(std::make_unique<Ui::TextPrompt>())
{
    m_ui->setupUi(this);
    setWindowTitle(request.title);
    SetLabel(UsualLabel());
    m_ui->bedText->setText(request.defaultText);
    m_ui->bedText->selectAll();
    SetEntryWidth(request.width > 0 ? request.width : UsualWidth);
    ShowLimits();
    connect(m_ui->bedText, &QLineEdit::textChanged, this, &TextPrompt::ShowAcceptability);
    ShowAcceptability();
}

TextPrompt::~TextPrompt() = default;

PromptAnswer TextPrompt::Ask()
{
    if (exec() != QDialog::Accepted)
        return {};
    return {true, m_ui->bedText->text()};
}

void TextPrompt::SetLabel(const QString& label)
{
    m_ui->lblText->setText(label);
}

void TextPrompt::PlaceOver(const QWidget& control)
{
    adjustSize();
    const QRect screen = control.screen()->availableGeometry();
    const QPoint wanted = control.mapToGlobal(QPoint(0, 0)) - m_ui->bedText->pos();
    move(
        Within(wanted.x(), screen.left(), screen.right() - width()),
        Within(wanted.y(), screen.top(), screen.bottom() - height()));
}

QString TextPrompt::UsualLabel() const
{
    if (m_request.kind == EntryKind::Text)
        return tr("Name:");
    // Editors ask for the code of a layer with the limits of its type.
    const bool isCode = m_request.minimum == std::numeric_limits<qint16>::min()
        && m_request.maximum == std::numeric_limits<qint16>::max();
    return isCode ? tr("Code:") : tr("Number:");
}

bool TextPrompt::IsAcceptable(const QString& text) const
{
    return m_request.kind == EntryKind::Text
        || IsWholeNumberWithin(text, m_request.minimum, m_request.maximum);
}

void TextPrompt::ShowAcceptability()
{
    m_ui->buttons->button(QDialogButtonBox::Ok)->setEnabled(IsAcceptable(m_ui->bedText->text()));
}

void TextPrompt::ShowLimits()
{
    m_ui->lblLimits->setVisible(m_request.kind == EntryKind::Integer);
    m_ui->lblLimits->setText(
        tr("A whole number from %1 to %2").arg(ToText(m_request.minimum), ToText(m_request.maximum)));
    m_ui->bedText->setAccessibleDescription(
        m_ui->lblLimits->isHidden() ? QString() : m_ui->lblLimits->text());
}

void TextPrompt::SetEntryWidth(int averageCharacters)
{
    const int frame
        = m_ui->bedText->sizeHint().width() - 17 * m_ui->bedText->fontMetrics().horizontalAdvance(u'x');
    m_ui->bedText->setMinimumWidth(
        averageCharacters * m_ui->bedText->fontMetrics().averageCharWidth() + frame);
}

} // namespace Orvane
