// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QStringList>

#include <memory>

namespace Ui {
class TablesDialog;
}

namespace Orvane {

/// Asks which tables of a server are added to its map as layers. While the user searches, only the tables
/// whose names contain all the words are listed.
class TablesDialog : public QDialog
{
    Q_OBJECT
public:
    TablesDialog(const QStringList& tables, QWidget* parent);
    ~TablesDialog() override;

    /// The chosen tables, in the order of the list.
    QStringList Chosen() const;

    /// Shows the dialog; empty if the user cancels.
    static QStringList Ask(const QStringList& tables, QWidget* parent);

private:
    void Search(const QString& text);
    void ShowState();

    std::unique_ptr<Ui::TablesDialog> m_ui;
};

} // namespace Orvane
