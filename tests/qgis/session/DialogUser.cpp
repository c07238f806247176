// SPDX-License-Identifier: MIT
#include "qgis/session/DialogUser.h"

#include <QApplication>
#include <QCheckBox>
#include <QContextMenuEvent>
#include <QMenu>
#include <QPushButton>
#include <QTabBar>
#include <QTreeView>
#include <QtTest>

#include <algorithm>

namespace Orvane::Testing {

namespace {

constexpr int NumberRole = Qt::UserRole + 1; // of the lists of colours and styles

// The part of a control that is clicked.
QWidget& Target(QWidget& control)
{
    auto* box = control.findChild<QCheckBox*>();
    return box ? *box : control;
}

} // namespace

DialogUser::DialogUser(std::function<QWidget*()> form) : m_form(std::move(form))
{
    qApp->installEventFilter(this);
}

void DialogUser::Click(const char* name)
{
    QTest::mouseClick(&Target(Find(name)), Qt::LeftButton);
    QCoreApplication::processEvents();
}

void DialogUser::ClickTab(int tab)
{
    auto& tabs = Find<QTabBar>("tsLists");
    QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(tab - 1).center());
    QCoreApplication::processEvents();
}

QTreeView& DialogUser::Tree(int tab)
{
    return Find<QTreeView>(tab == 1 ? "tvLayers1" : "tvLayers2");
}

int DialogUser::Rows(int tab)
{
    return Tree(tab).model()->rowCount();
}

QStringList DialogUser::Texts(int tab)
{
    const QAbstractItemModel& model = *Tree(tab).model();
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row)
        texts << model.index(row, 0).data().toString();
    return texts;
}

bool DialogUser::ClickNode(int tab, int row)
{
    return ClickNode(tab, row, Qt::NoModifier);
}

bool DialogUser::ClickNode(int tab, int row, Qt::KeyboardModifiers modifiers)
{
    QTreeView& tree = Tree(tab);
    const QModelIndex index = tree.model()->index(row, 0);
    if (!index.isValid() || !tree.isVisible())
        return false;
    tree.scrollTo(index);
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, modifiers, tree.visualRect(index).center());
    QCoreApplication::processEvents();
    return true;
}

void DialogUser::ClickNodes(int tab, const std::vector<int>& rows)
{
    for (const int row : rows)
        ClickNode(tab, row, row == rows.front() ? Qt::NoModifier : Qt::ControlModifier);
}

bool DialogUser::Pick(int tab, const QString& entry)
{
    QTreeView& tree = Tree(tab);
    const QPoint place = tree.rect().center();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, place, tree.mapToGlobal(place));
    QApplication::sendEvent(&tree, &event);
    QCoreApplication::processEvents();
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!menu)
        throw std::runtime_error("no menu");
    const QList<QAction*> entries = menu->actions();
    const auto found = std::find_if(entries.begin(), entries.end(), [&entry](const QAction* action) {
        return action->text() == entry && action->isEnabled();
    });
    if (found != entries.end())
        menu->setActiveAction(*found);
    QTest::keyClick(menu, found == entries.end() ? Qt::Key_Escape : Qt::Key_Return);
    QCoreApplication::processEvents();
    return found != entries.end();
}

QStringList DialogUser::ChosenTexts(int tab)
{
    QStringList texts;
    for (const QModelIndex& index : Tree(tab).selectionModel()->selectedIndexes())
        texts << index.data().toString();
    return texts;
}

bool DialogUser::CanEdit()
{
    return Find("chkVisible").isVisible() && Target(Find("chkVisible")).isEnabled();
}

std::optional<bool> DialogUser::FlagOf(const char* name)
{
    const Qt::CheckState state = Find(name).findChild<QCheckBox*>()->checkState();
    return state == Qt::PartiallyChecked ? std::nullopt : std::optional(state == Qt::Checked);
}

std::optional<int> DialogUser::StepThrough(const char* list, int key)
{
    auto& entries = Find<QComboBox>(list);
    QTest::keyClick(&entries, Qt::Key(key));
    QCoreApplication::processEvents();
    if (entries.currentText() == QLatin1String("[various]"))
        return std::nullopt;
    return entries.currentData(NumberRole).toInt();
}

bool DialogUser::eventFilter(QObject* watched, QEvent* event)
{
    auto* box = qobject_cast<QMessageBox*>(watched);
    if (box && event->type() == QEvent::Show)
        QMetaObject::invokeMethod(
            box, [this, box] { Answer(*box); }, Qt::QueuedConnection);
    return false;
}

void DialogUser::Answer(QMessageBox& box)
{
    m_boxes << box.text();
    if (box.objectName() == QLatin1String("dlgConflict")) {
        for (QAbstractButton* button : box.buttons()) {
            if (box.buttonRole(button) == QMessageBox::AcceptRole)
                return button->click();
        }
    }
    QAbstractButton* wanted = box.button(answersYes ? QMessageBox::Yes : QMessageBox::No);
    (wanted ? wanted : box.button(QMessageBox::Ok))->click();
}

} // namespace Orvane::Testing
