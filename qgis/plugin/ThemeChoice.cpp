// SPDX-License-Identifier: MIT
#include "qgis/plugin/ThemeChoice.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace Orvane {

namespace {

QString Translated(const char* text)
{
    return QCoreApplication::translate("ThemeChoice", text);
}

void Fill(QListWidget& list, const QStringList& themes)
{
    list.setObjectName(QStringLiteral("lstThemes"));
    for (const QString& theme : themes) {
        auto* item = new QListWidgetItem(theme, &list);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Checked);
    }
    list.setCurrentRow(0);
}

QStringList Ticked(const QListWidget& list)
{
    QStringList themes;
    for (int row = 0; row < list.count(); ++row) {
        if (list.item(row)->checkState() == Qt::Checked)
            themes << list.item(row)->text();
    }
    return themes;
}

} // namespace

QStringList AskForThemes(const QStringList& themes, QWidget& window)
{
    QDialog dialog(&window);
    dialog.setObjectName(QStringLiteral("dlgImportThemes"));
    dialog.setWindowTitle(Translated(QT_TRANSLATE_NOOP("ThemeChoice", "Import Map Themes")));
    auto* label = new QLabel(
        Translated(QT_TRANSLATE_NOOP("ThemeChoice", "&Make a layer scheme of each of these map themes:")));
    auto* list = new QListWidget;
    label->setBuddy(list);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(label);
    layout->addWidget(list);
    layout->addWidget(buttons);
    Fill(*list, themes);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    QObject::connect(list, &QListWidget::itemChanged, &dialog, [list, buttons] {
        buttons->button(QDialogButtonBox::Ok)->setEnabled(!Ticked(*list).isEmpty());
    });
    return dialog.exec() == QDialog::Accepted ? Ticked(*list) : QStringList();
}

} // namespace Orvane
