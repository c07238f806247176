// SPDX-License-Identifier: MIT
#pragma once

#include "shell/servers/ServerWork.h"
#include "store/StoreOptions.h"

#include <QDialog>
#include <QString>

#include <memory>

class QSortFilterProxyModel;

namespace Ui {
class ServerMapDialog;
}

namespace Orvane {

class ServerChoice;
class ServerMapModel;
class ServerPasswords;

/// Where a map is to be stored.
struct PlaceToSave {
    QString place; ///< empty if the user has cancelled
    IfExists ifExists = IfExists::Refuse; ///< Replace if the user has agreed to it
};

/// Asks for a map on a server: one to open, or where to store one. The servers that the user has added are
/// remembered; the maps on the chosen one are listed in the background.
///
///     const QString place = ServerMapDialog::AskToOpen(passwords, &window);
class ServerMapDialog : public QDialog
{
    Q_OBJECT
public:
    enum class Purpose { Open, Save };

    /// name: proposed for a map to be stored. passwords: outlives the dialog.
    ServerMapDialog(Purpose purpose, const QString& name, ServerPasswords& passwords, QWidget* parent);
    ~ServerMapDialog() override;

    /// The place of the chosen map; empty while there is none.
    QString Place() const;
    /// Replace once the user has agreed to replace the map at that place.
    IfExists WhatIfExists() const { return m_ifExists; }

    /// Shows the dialog; empty if the user cancels.
    static QString AskToOpen(ServerPasswords& passwords, QWidget* parent);
    /// The same; asks too before a map would be replaced. What appears at that place later is not replaced.
    static PlaceToSave AskToSave(const QString& name, ServerPasswords& passwords, QWidget* parent);

    void accept() override;
    void reject() override;

private:
    void ShowPurpose(const QString& name);
    void Connect();
    void List();
    void ShowMaps(std::vector<ListedMap> maps);
    void FitColumns();
    void ShowState();
    void RemoveMap();
    void TakeRow();
    bool MayStore();
    bool MayReplace(const QString& name);
    int Row() const;
    QString Name() const;
    QString StateText() const;

    Purpose m_purpose;
    std::unique_ptr<Ui::ServerMapDialog> m_ui;
    ServerMapModel* m_model; // owned by this dialog, as the next two
    QSortFilterProxyModel* m_rows;
    ServerChoice* m_servers;
    ServerWork m_work;
    bool m_isChanging = false; // something on the server, while the work runs
    QString m_failure; // of the last work
    IfExists m_ifExists = IfExists::Refuse;
    bool m_isListed = false;
};

} // namespace Orvane
