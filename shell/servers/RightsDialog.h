// SPDX-License-Identifier: MIT
#pragma once

#include "shell/servers/ServerWork.h"

#include <QDialog>
#include <QString>

#include <memory>
#include <vector>

namespace Ui {
class RightsDialog;
}

namespace Orvane {

class ServerPasswords;

/// Shows and changes who may read and edit a map on a server. Nothing is changed before OK, and then
/// everything together. Only the owner of the map can change it; for others the server's refusal is shown.
class RightsDialog : public QDialog
{
    Q_OBJECT
public:
    /// place: of the map. passwords: outlives the dialog.
    RightsDialog(const QString& place, ServerPasswords& passwords, QWidget* parent);
    ~RightsDialog() override;

    void accept() override;
    void reject() override;

private:
    void Connect();
    void Read();
    void ShowRoles(const QStringList& roles, std::vector<MapHolder> holders);
    void ShowHolders();
    void ShowState();
    void Give();
    void TakeBack();

    QString m_place;
    std::unique_ptr<Ui::RightsDialog> m_ui;
    ServerWork m_work;
    std::vector<MapHolder> m_holders; // as they are to be
    bool m_isChanging = false; // something on the server, while the work runs
    QString m_failure;
    bool m_isRead = false;
};

} // namespace Orvane
