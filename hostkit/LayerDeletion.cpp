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

QString GroupsLine(const LayerDeletion& deletion)
{
    const QString text = deletion.layers == 1 ? Texts::tr("It will be removed from its groups: %1.")
                                              : Texts::tr("They will be removed from their groups: %1.");
    return text.arg(Listed(deletion.groups));
}

QString SchemesLine(const LayerDeletion& deletion)
{
    const QString text = deletion.layers == 1
        ? Texts::tr("Its saved values will be removed from the layer schemes: %1.")
        : Texts::tr("Their saved values will be removed from the layer schemes: %1.");
    return text.arg(Listed(deletion.schemes));
}

QString Consequences(const LayerDeletion& deletion)
{
    QStringList lines;
    if (!deletion.groups.isEmpty())
        lines << GroupsLine(deletion);
    if (!deletion.schemes.isEmpty())
        lines << SchemesLine(deletion);
    lines
        << (deletion.layers == 1 ? Texts::tr("Its data file stays. You can undo the deletion.")
                                 : Texts::tr("Their data files stay. You can undo the deletion."));
    return lines.join(QLatin1Char('\n'));
}

QString Question(const LayerDeletion& deletion)
{
    if (deletion.layers == 1)
        return Texts::tr("Delete the layer \"%1\"?").arg(NameInQuestion(deletion.layer));
    return Texts::tr("Delete %1 layers?").arg(QLocale().toString(deletion.layers));
}

} // namespace

bool LayerDeletion::Confirm(QWidget* owner) const
{
    const QString title = layers == 1 ? Texts::tr("Delete Layer") : Texts::tr("Delete Layers");
    QMessageBox box(QMessageBox::Question, title, Question(*this), QMessageBox::Yes | QMessageBox::No, owner);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(Consequences(*this));
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

} // namespace Orvane
