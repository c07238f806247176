// SPDX-License-Identifier: MIT
#pragma once

#include "end_to_end/Town.h"
#include "hostkit/StyleEditorPlugin.h"
#include "hostkit/common/SettingsStore.h"
#include "mapkit/document/MapDocument.h"
#include "shell/MainWindow.h"
#include "shell/map/MapSession.h"
#include "store/ILayerStore.h"
#include "support/MessageBoxRobot.h"
#include "support/ShownEditor.h"

#include <OrvaneShellLib/IStyleEditorLibrary.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSettings>
#include <QStandardPaths>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include <gmock/gmock.h>

namespace Orvane::Testing {

/// The shell with the real component and the town's map, and the actions of its user.
class TownWindow : public testing::Test
{
protected:
    void SetUp() override
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder.path());
        QFile::remove(StartupFile());
        m_map = MakeTown(m_folder, "town.orvane");
        m_window = std::make_unique<MainWindow>();
        m_window->resize(700, 450);
        m_window->show();
        m_window->OpenMap(MapPath());
    }

    QString MapPath() const { return m_map; }
    QString PathOf(const QString& name) const { return m_folder.filePath(name); }
    static QString StartupFile()
    {
        return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + "/startup.orvane";
    }

    ILayerStore& Database() { return m_window->Document().Database(); }

    Value Stored(const QString& layer, const char* column)
    {
        return Database().OpenQuery("SELECT * FROM Layers WHERE Name = ?1", {layer})->Field(column);
    }

    int Count(const QString& from)
    {
        return ToInt32(Database().OpenQuery("SELECT count(*) AS Number FROM " + from)->Field("Number"));
    }

    // ---- the main window

    void Trigger(const char* action) { m_window->findChild<QAction*>(QLatin1String(action))->trigger(); }

    /// Opens the menu and presses the entry that has or contains that text.
    void Choose(const char* menuName, const QString& text)
    {
        auto* menu = m_window->findChild<QMenu*>(QLatin1String(menuName));
        emit menu->aboutToShow();
        for (QAction* action : menu->actions()) {
            if (action->text().remove('&').contains(text)) {
                ASSERT_TRUE(action->isEnabled()) << qPrintable(text);
                return action->trigger();
            }
        }
        FAIL() << "no entry: " << qPrintable(text);
    }

    QStringList Entries(const char* menuName)
    {
        auto* menu = m_window->findChild<QMenu*>(QLatin1String(menuName));
        emit menu->aboutToShow();
        QStringList texts;
        for (QAction* action : menu->actions())
            texts << action->text().remove('&');
        return texts;
    }

    QString LabelText(const char* name) { return m_window->findChild<QLabel*>(QLatin1String(name))->text(); }

    /// Acts in the next modal window that is not a message box, as soon as it is shown.
    static void WhenAsked(const std::function<void(QDialog& dialog)>& act)
    {
        auto* timer = new QTimer(qApp);
        QObject::connect(timer, &QTimer::timeout, timer, [timer, act] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!dialog || qobject_cast<QMessageBox*>(dialog))
                return;
            timer->deleteLater();
            timer->stop();
            act(*dialog);
        });
        timer->start(0);
    }

    /// Types the name into the prompt that opens next, and presses Enter.
    static void AnswerPrompt(const QString& text)
    {
        WhenAsked([text](QDialog& prompt) {
            auto* line = prompt.findChild<QLineEdit*>();
            QTest::keyClicks(line, text);
            QTest::keyClick(line, Qt::Key_Return);
        });
    }

    // ---- the editors

    /// The command would close it again if it is in the dock and has the keys.
    void OpenLayerControl()
    {
        if (!Form())
            Trigger("actLayerControl");
    }

    /// The shown editor with that caption; nullptr for none.
    static QWidget* Form(const QString& caption = "Layer Control") { return ShownEditor(caption); }

    template <typename Widget = QWidget> static Widget& Find(QWidget* form, const char* name)
    {
        auto* found = form ? form->findChild<Widget*>(QLatin1String(name)) : nullptr;
        if (!found)
            throw std::runtime_error(name);
        return *found;
    }

    static QStringList Listed(QWidget* form)
    {
        QStringList names;
        const QAbstractItemModel* model = Find<QTreeView>(form, "tvLayers2").model();
        for (int row = 0; row < model->rowCount(); ++row)
            names << model->index(row, 0).data().toString();
        return names;
    }

    static void ClickTab(QWidget* form, int tab)
    {
        auto& tabs = Find<QTabBar>(form, "tsLists");
        QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(tab - 1).center());
    }

    static void ClickLayer(QWidget* form, const QString& name)
    {
        auto& tree = Find<QTreeView>(form, "tvLayers2");
        const QModelIndexList found = tree.model()->match(tree.model()->index(0, 0), Qt::DisplayRole, name);
        ASSERT_EQ(found.size(), 1);
        tree.scrollTo(found[0]);
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualRect(found[0]).center());
    }

    static void ClickVisible(QWidget* form)
    {
        auto* box = Find(form, "chkVisible").findChild<QCheckBox*>();
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    }

    static void Press(QWidget* form, const char* button)
    {
        QTest::mouseClick(&Find(form, button), Qt::LeftButton);
    }

    /// Clears or sets "Visible" of the layer in the layer control, and applies it.
    void SwitchVisible(const QString& layer)
    {
        OpenLayerControl();
        ClickLayer(Form(), layer);
        ClickVisible(Form());
        Press(Form(), "cmdApply");
    }

    QTemporaryDir m_folder;
    QString m_map; // its place
    std::unique_ptr<MainWindow> m_window;
};

} // namespace Orvane::Testing
