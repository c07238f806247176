// SPDX-License-Identifier: MIT
#include "hostkit/windows/ConflictBox.h"

#include "hostkit/windows/OwnedDialog.h"
#include "messages/NameInText.h"

#include <QCoreApplication>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>

namespace Orvane {

namespace {

constexpr std::size_t MostLines = 10;

struct ConflictTexts {
    Q_DECLARE_TR_FUNCTIONS(ConflictBox)
};

QString LineOf(const ConflictingEdit& edit)
{
    QString line
        = ConflictTexts::tr("%1: your value is %2, stored is %3").arg(edit.property, edit.mine, edit.stored);
    if (edit.layers < 2)
        return line;
    return ConflictTexts::tr("%1 (in %2 layers)").arg(line, QLocale().toString(edit.layers));
}

QString LinesOf(const std::vector<ConflictingEdit>& edits)
{
    QStringList lines;
    for (std::size_t edit = 0; edit < std::min(edits.size(), MostLines); ++edit)
        lines << LineOf(edits[edit]);
    if (edits.size() > MostLines)
        lines << ConflictTexts::tr("%1 more").arg(edits.size() - MostLines);
    return lines.join(QLatin1Char('\n'));
}

} // namespace

ConflictChoice
AskInConflictBox(QWidget* owner, const QString& node, const std::vector<ConflictingEdit>& edits)
{
    const OwnedDialog<QMessageBox> box(owner);
    box->setObjectName(QStringLiteral("dlgConflict"));
    box->setIcon(QMessageBox::Warning);
    box->setWindowTitle(ConflictTexts::tr("Changed Elsewhere"));
    box->setTextFormat(Qt::PlainText);
    box->setText(
        ConflictTexts::tr("What you edited was changed elsewhere meanwhile: %1").arg(NameInQuestion(node)));
    box->setInformativeText(LinesOf(edits));
    const QPushButton* overwrite
        = box->addButton(ConflictTexts::tr("&Store My Values"), QMessageBox::AcceptRole);
    QPushButton* keep
        = box->addButton(ConflictTexts::tr("&Keep the Stored Ones"), QMessageBox::DestructiveRole);
    box->setEscapeButton(box->addButton(QMessageBox::Cancel));
    box->setDefaultButton(keep);
    box->exec();
    if (!box.Exists())
        return ConflictChoice::Cancel;
    const QAbstractButton* clicked = box->clickedButton();
    if (clicked == overwrite)
        return ConflictChoice::Overwrite;
    return clicked == keep ? ConflictChoice::KeepStored : ConflictChoice::Cancel;
}

} // namespace Orvane
