// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/undo/LayerStepsFixture.h"
#include "support/MessageBoxRobot.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

namespace Orvane::Testing {

// A map with the schemes "Day", "Night" (current) and "Standard", and the user in the window for them.
class SchemeWindow : public Steps
{
protected:
    SchemeWindow()
    {
        m_client.SetSettingsFile(m_folder.filePath(QStringLiteral("settings.ini")));
        Host().GetSchemeNames();
        Host().CreateScheme(QStringLiteral("Day"));
        Set(1, "Color", 5);
        Host().CreateScheme(Night);
        History().Clear();
    }

    // Opens the window, lets the user act, and closes it with Escape.
    void InWindow(const std::function<void()>& act)
    {
        WhenModal([&](QWidget& window) {
            m_window = &window;
            EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
            act();
            m_window = nullptr;
            QTest::keyClick(&window, Qt::Key_Escape);
        });
        static_cast<ISchemeManager&>(m_client).ManageSchemes(nullptr);
    }

    template <typename Widget> Widget& Find(const char* name)
    {
        return *m_window->findChild<Widget*>(QLatin1String(name));
    }

    QTableView& Table() { return Find<QTableView>("tblSchemes"); }

    QStringList Column(int column)
    {
        QStringList texts;
        for (int row = 0; row < Table().model()->rowCount(); ++row)
            texts << Table().model()->index(row, column).data().toString();
        return texts;
    }

    void ClickScheme(const QString& name, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        const int row = int(Column(0).indexOf(name));
        const QRect place = Table().visualRect(Table().model()->index(row, 0));
        QTest::mouseClick(Table().viewport(), Qt::LeftButton, modifiers, place.center());
    }

    void Press(const char* button) { QTest::mouseClick(&Find<QPushButton>(button), Qt::LeftButton); }

    void PressKey(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        m_window->activateWindow(); // again, after a question
        EXPECT_TRUE(QTest::qWaitForWindowActive(m_window));
        QTest::keyClick(m_window->focusWidget(), key, modifiers);
    }

    // The user's answer to the next question for a name.
    static void TypeName(const QString& name)
    {
        WhenModal([name](QWidget& prompt) {
            auto* entry = prompt.findChild<QLineEdit*>(QStringLiteral("bedText"));
            ASSERT_TRUE(entry);
            entry->selectAll();
            QTest::keyClicks(entry, name);
            QTest::keyClick(entry, Qt::Key_Return);
        });
    }

    QTemporaryDir m_folder;
    QWidget* m_window = nullptr; // while the user acts
};

} // namespace Orvane::Testing
