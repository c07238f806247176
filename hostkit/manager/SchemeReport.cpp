// SPDX-License-Identifier: MIT
#include "hostkit/manager/SchemeReport.h"

#include "hostkit/schemes/SchemeExchange.h"
#include "hostkit/windows/OwnedDialog.h"
#include "messages/NameInText.h"

#include <QCoreApplication>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QStringList>

namespace Orvane {

namespace {

constexpr qsizetype MostNames = 1000; // of each list

class Texts
{
    Q_DECLARE_TR_FUNCTIONS(SchemeReport)
};

QString Number(qsizetype count)
{
    return QLocale().toString(count);
}

void AppendList(QStringList& lines, const QString& title, const QStringList& names)
{
    if (names.isEmpty())
        return;
    if (!lines.isEmpty())
        lines << QString();
    lines << title;
    for (const QString& name : names.mid(0, MostNames))
        lines << QLatin1String("    ") + NameInText(name);
    if (names.size() > MostNames)
        lines << Texts::tr("... and %1 more.").arg(Number(names.size() - MostNames));
}

} // namespace

QString ReportText(const SchemeImport& import)
{
    QStringList lines{
        Texts::tr("The scheme \"%1\" was imported.").arg(NameInText(import.name)), QString(),
        Texts::tr("Layers in both the file and this map: %1").arg(Number(import.matched))};
    if (!import.onlyInFile.isEmpty())
        lines << Texts::tr("Layers of the file that this map does not have: %1")
                     .arg(Number(import.onlyInFile.size()));
    if (!import.onlyInMap.isEmpty())
        lines << Texts::tr("Layers of this map that the file does not have, which keep their values: %1")
                     .arg(Number(import.onlyInMap.size()));
    return lines.join(QLatin1Char('\n'));
}

QString ReportDetails(const SchemeImport& import)
{
    QStringList lines;
    AppendList(lines, Texts::tr("In the file, not in the map:"), import.onlyInFile);
    AppendList(lines, Texts::tr("In the map, not in the file:"), import.onlyInMap);
    return lines.join(QLatin1Char('\n'));
}

AfterImport AskAfterImport(const SchemeImport& import, bool isCurrent, QWidget& window)
{
    const OwnedDialog<QMessageBox> box(
        QMessageBox::Information, Texts::tr("Import Scheme"), ReportText(import), QMessageBox::NoButton,
        &window);
    box->setObjectName(QStringLiteral("dlgSchemeReport"));
    box->setTextFormat(Qt::PlainText);
    box->setDetailedText(ReportDetails(import));
    const QPushButton* change = box->addButton(
        isCurrent ? Texts::tr("&Use It Now") : Texts::tr("S&witch to It"), QMessageBox::AcceptRole);
    QPushButton* stay = box->addButton(Texts::tr("&Keep Layers"), QMessageBox::RejectRole);
    box->setDefaultButton(stay);
    box->setEscapeButton(stay);
    box->exec();
    return box.Exists() && box->clickedButton() == change ? AfterImport::Switch : AfterImport::Stay;
}

} // namespace Orvane
