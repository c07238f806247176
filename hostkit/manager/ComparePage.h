// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/manager/ManagerHost.h"
#include "hostkit/manager/SchemeValueTexts.h"
#include "hostkit/schemes/SchemeDetails.h"

#include <QList>
#include <QTimer>
#include <QWidget>

#include <optional>
#include <vector>

class QAction;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableView;

namespace Orvane {

class DifferencesModel;

/// Compares a scheme with the layers as they are, or with another scheme, line by line; chosen values are
/// taken over into the layers. Compares only while it is shown.
class ComparePage : public QWidget
{
    Q_OBJECT

public:
    /// host: its parts outlive this page.
    explicit ComparePage(const ManagerHost& host, QWidget* parent = nullptr);

    /// Sets what is compared: one scheme with the layers, or two with each other; otherwise nothing changes.
    void Propose(const QStringList& schemes);

    /// Adds actions to the context menu of the table; not owned.
    void AddToMenu(const QList<QAction*>& actions);

    /// The widths of the columns, to be kept; anything that is not such a state changes nothing.
    QByteArray Columns() const;
    void RestoreColumns(const QByteArray& state);

protected:
    void showEvent(QShowEvent* event) override;

private:
    QWidget* MakeChoices();
    void MakeList(QComboBox& list, QGridLayout& grid, const QString& caption, int row);
    void FillParts();
    void MakeTable();
    QWidget* MakeFoot();
    void Wire();
    void FillLists();
    // Of a scheme with that name in the list from before.
    QString NameNow(const QString& name, const std::vector<SchemeDetails>& before) const;
    void CompareSoon();
    void Compare();
    void ShowCount();
    QString ComparedText() const;
    bool HasChosenValue() const;
    void TakeOverChosen();
    void Choose(QComboBox& list, const QString& scheme);
    std::optional<QString> From() const;

    ManagerHost m_host;
    SchemeValueTexts m_texts;
    std::vector<SchemeDetails> m_known; // when the lists were filled
    SchemeParts m_compared = WholeScheme;
    DifferencesModel* m_model;
    QComboBox* m_from;
    QComboBox* m_to;
    QComboBox* m_part;
    QLineEdit* m_filter;
    QTableView* m_table;
    QLabel* m_count;
    QPushButton* m_takeOver;
    QAction* m_takeOverInMenu;
    QTimer m_soon;
};

} // namespace Orvane
