// SPDX-License-Identifier: MIT
#include "hostkit/LayerDeletion.h"

#include "messages/NameInText.h"

#include <QCoreApplication>
#include <QLocale>
#include <QMessageBox>

namespace Orvane {

namespace {

constexpr qsizetype MostNames = 5;

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(LayerDeletion)
};

QString Listed(const QStringList& names)
{
    QStringList listed;
    for (const QString& name : names.mid(0, MostNames))
        listed << QLatin1Char('"') + NameInStep(name) + QLatin1Char('"');
    if (names.size() > MostNames)
        listed << Texts::tr("%1 more").arg(QLocale().toString(names.size() - MostNames));
    return listed.join(QLatin1String(", "));
}

QString Consequences(const LayerDeletion& deletion)
{
    QStringList lines;
    if (!deletion.groups.isEmpty())
        lines << Texts::tr("It will be removed from its groups: %1.").arg(Listed(deletion.groups));
    if (!deletion.schemes.isEmpty())
        lines << Texts::tr("Its saved values will be removed from the layer schemes: %1.")
                     .arg(Listed(deletion.schemes));
    lines << Texts::tr("Its data file stays. You can undo the deletion.");
    return lines.join(QLatin1Char('\n'));
}

} // namespace

bool LayerDeletion::Confirm(QWidget* owner) const
{
    QMessageBox box(
        QMessageBox::Question, Texts::tr("Delete Layer"),
        Texts::tr("Delete the layer \"%1\"?").arg(NameInQuestion(layer)), QMessageBox::Yes | QMessageBox::No,
        owner);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(Consequences(*this));
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

} // namespace Orvane
