// SPDX-License-Identifier: MIT
#include "shell/servers/AddServerDialog.h"

#include "mapkit/common/Guard.h"
#include "store/opening/ServerMaps.h"
#include "ui_AddServerDialog.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QPushButton>

namespace Orvane {

AddServerDialog::AddServerDialog(QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::AddServerDialog>())
{
    m_ui->setupUi(this);
    m_ui->lblProblem->hide();
    connect(m_ui->edtServer, &QLineEdit::textChanged, this, &AddServerDialog::ShowState);
    connect(m_ui->buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_ui->buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    m_ui->edtServer->setFocus();
    ShowState();
}

AddServerDialog::~AddServerDialog() = default;

QString AddServerDialog::Ask(QWidget* parent)
{
    AddServerDialog dialog(parent);
    return dialog.exec() == QDialog::Accepted ? dialog.Server() : QString();
}

void AddServerDialog::accept()
{
    Guard(this, [this] {
        try {
            m_server = ServerMaps::ServerIn(m_ui->edtServer->text());
            QDialog::accept();
        } catch (const RunTimeError& error) {
            m_ui->lblProblem->setText(error.Description());
            m_ui->lblProblem->show();
        }
    });
}

void AddServerDialog::ShowState()
{
    m_ui->lblProblem->hide();
    m_ui->buttons->button(QDialogButtonBox::Ok)->setEnabled(!m_ui->edtServer->text().trimmed().isEmpty());
}

} // namespace Orvane
