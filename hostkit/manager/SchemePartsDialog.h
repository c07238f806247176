// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/schemes/SchemeParts.h"

#include <QDialog>
#include <QString>

#include <vector>

class QCheckBox;
class QDialogButtonBox;
class QLineEdit;
class QVBoxLayout;

namespace Orvane {

/// Asks which properties a scheme holds, and for the name of a new one. OK is enabled while there is a name
/// and at least one class of properties is ticked.
///
///     SchemePartsDialog dialog(tr("New Scheme"), WholeScheme, this);
///     dialog.AskForName();
///     if (dialog.exec() == QDialog::Accepted)
///         Make(dialog.Name(), dialog.Holds());
class SchemePartsDialog : public QDialog
{
    Q_OBJECT

public:
    /// holds: what is ticked at first.
    SchemePartsDialog(const QString& title, SchemeParts holds, QWidget* parent);

    /// Adds an entry for the name; call it before the dialog is shown.
    void AskForName();
    /// Adds a remark below the classes.
    void AddRemark(const QString& remark);

    /// Without blanks around it; empty if it was not asked for.
    QString Name() const;
    /// What is ticked.
    SchemeParts Holds() const;

private:
    void AddPart(SchemePart part, bool isTicked);
    void EnableOK();

    QVBoxLayout* m_rows; // owned by the dialog, like the controls
    QLineEdit* m_name;
    std::vector<QCheckBox*> m_parts; // in the order of AllSchemeParts
    QDialogButtonBox* m_buttons = nullptr;
    bool m_asksForName = false;
};

} // namespace Orvane
