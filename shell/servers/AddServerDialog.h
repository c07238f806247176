// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QString>

#include <memory>

namespace Ui {
class AddServerDialog;
}

namespace Orvane {

/// Asks for a PostgreSQL server: the name of a service in the user's service file, or a connection URI. A
/// text that is neither, or that holds a password, is refused with the reason, and can be corrected.
class AddServerDialog : public QDialog
{
    Q_OBJECT
public:
    explicit AddServerDialog(QWidget* parent);
    ~AddServerDialog() override;

    /// The server that was typed, as ServerMaps names it; the dialog can only be accepted with one.
    QString Server() const { return m_server; }

    /// Shows the dialog; empty if the user cancels.
    static QString Ask(QWidget* parent);

    void accept() override;

private:
    void ShowState();

    std::unique_ptr<Ui::AddServerDialog> m_ui;
    QString m_server;
};

} // namespace Orvane
