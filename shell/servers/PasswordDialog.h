// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QString>

#include <memory>
#include <optional>

namespace Ui {
class PasswordDialog;
}

namespace Orvane {

/// For what a password is wanted.
struct PasswordQuestion {
    QString user;
    QString server; ///< as the user reads it
    bool wasWrong = false; ///< the server has just refused one
};

/// Asks for a password, which the field does not show.
class PasswordDialog : public QDialog
{
    Q_OBJECT
public:
    PasswordDialog(const PasswordQuestion& question, QWidget* parent);
    ~PasswordDialog() override;

    QString Password() const;

    /// Shows the dialog; nothing if the user cancels.
    static std::optional<QString> Ask(const PasswordQuestion& question, QWidget* parent);

private:
    std::unique_ptr<Ui::PasswordDialog> m_ui;
};

} // namespace Orvane
