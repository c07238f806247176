// SPDX-License-Identifier: MIT
#include "hostkit/manager/SchemeFileDialogs.h"

#include "hostkit/windows/OwnedDialog.h"
#include "hostkit/windows/UserQuestions.h"
#include "messages/NameInText.h"

#include <QCoreApplication>
#include <QFileDialog>

namespace Orvane::SchemeFileDialogs {

namespace {

constexpr auto FileSuffix = "json";

struct SchemeFileTexts {
    Q_DECLARE_TR_FUNCTIONS(SchemeFileDialogs)
};

// The scheme's name, without the characters that a file name may not contain.
QString FileNameFor(const QString& scheme)
{
    QString name = NameInText(scheme);
    for (QChar& character : name) {
        if (QStringLiteral("/\\:*?\"<>|").contains(character))
            character = QLatin1Char('_');
    }
    return name + QLatin1Char('.') + QLatin1String(FileSuffix);
}

} // namespace

QString AskExportPath(QWidget* parent, const QString& scheme)
{
    const OwnedDialog<QFileDialog> dialog(
        parent, SchemeFileTexts::tr("Export Scheme"), QString(),
        SchemeFileTexts::tr("Layer schemes (*.json)"));
    dialog->setObjectName(QStringLiteral("dlgExportScheme"));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QLatin1String(FileSuffix));
    dialog->selectFile(FileNameFor(scheme));
    return dialog->exec() == QDialog::Accepted ? dialog->selectedFiles().value(0) : QString();
}

QString AskImportPath(QWidget* parent)
{
    const OwnedDialog<QFileDialog> dialog(
        parent, SchemeFileTexts::tr("Import Scheme"), QString(),
        SchemeFileTexts::tr("Layer schemes (*.json);;All files (*)"));
    dialog->setObjectName(QStringLiteral("dlgImportScheme"));
    dialog->setFileMode(QFileDialog::ExistingFile);
    return dialog->exec() == QDialog::Accepted ? dialog->selectedFiles().value(0) : QString();
}

bool AskToReplace(QWidget* parent, const QString& scheme)
{
    return AskYesOrNo(
        parent, SchemeFileTexts::tr("Import Scheme"),
        SchemeFileTexts::tr("The scheme \"%1\" already exists. Replace it with the one in the file?")
            .arg(NameInText(scheme)));
}

} // namespace Orvane::SchemeFileDialogs
