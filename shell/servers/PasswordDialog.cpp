// SPDX-License-Identifier: MIT
#include "shell/servers/PasswordDialog.h"

#include "messages/NameInText.h"
#include "ui_PasswordDialog.h"

#include <QApplication>

namespace Orvane {

namespace {

constexpr int FieldLetters = 50; // times the width of an "x"

} // namespace

PasswordDialog::PasswordDialog(const PasswordQuestion& question, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::PasswordDialog>())
{
    m_ui->setupUi(this);
    m_ui->lblQuestion->setText(tr("Password of \"%1\" on the server \"%2\":")
                                   .arg(NameInText(question.user), NameInText(question.server)));
    m_ui->edtPassword->setMinimumWidth(FieldLetters * fontMetrics().horizontalAdvance(QLatin1Char('x')));
    m_ui->lblWrong->setVisible(question.wasWrong);
    connect(m_ui->buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_ui->buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    m_ui->edtPassword->setFocus();
}

PasswordDialog::~PasswordDialog() = default;

QString PasswordDialog::Password() const
{
    return m_ui->edtPassword->text();
}

// Shown over the dialog that the user sees, which would keep the input from one over the window.
std::optional<QString> PasswordDialog::Ask(const PasswordQuestion& question, QWidget* parent)
{
    QWidget* const modal = QApplication::activeModalWidget();
    PasswordDialog dialog(question, modal ? modal : parent);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.Password();
}

} // namespace Orvane
