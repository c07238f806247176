// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/EditorFixture.h"
#include "support/MenuByKeys.h"

#include <QTreeView>
#include <QtTest>

namespace Orvane::Testing {

/// A user of the nodes' menu. The flat list shows Boundary (4), a system layer, then Parcels (3), Rivers (2,
/// backdrop), Roads (1); group Transport holds 1 and 2.
class NodeMenuFixture : public EditorFixture
{
protected:
    void SetUp() override
    {
        AddTown();
        Open();
    }

    void TearDown() override
    {
        if (QWidget* menu = QApplication::activePopupWidget())
            menu->close();
        QCoreApplication::processEvents();
        EditorFixture::TearDown();
    }

    QTreeView& Tree() { return Find<QTreeView>(CurrentTab() == 1 ? "tvLayers1" : "tvLayers2"); }

    QModelIndex Node(const QString& text)
    {
        return Tree()
            .model()
            ->match(
                Tree().model()->index(0, 0), Qt::DisplayRole, text, 1, Qt::MatchExactly | Qt::MatchRecursive)
            .value(0);
    }

    void Choose(const QStringList& texts)
    {
        QTest::mouseClick(
            Tree().viewport(), Qt::LeftButton, {}, Tree().visualRect(Node(texts.first())).center());
        for (const QString& text : texts.mid(1)) {
            QTest::mouseClick(
                Tree().viewport(), Qt::LeftButton, Qt::ControlModifier,
                Tree().visualRect(Node(text)).center());
        }
    }

    /// Opens the menu with the Menu key.
    QMenu& Menu()
    {
        QMenu* menu = OpenMenuByKey(Tree());
        if (!menu)
            throw std::runtime_error("no menu");
        return *menu;
    }

    static QAction* Entry(const QMenu& menu, const QString& text) { return EntryOf(menu, text); }

    /// The tool tip of a disabled entry of a menu; empty for an enabled one.
    QString WhyNot(const QString& text)
    {
        QMenu& menu = Menu();
        const QAction* entry = Entry(menu, text);
        const QString why = !entry ? QStringLiteral("missing")
            : entry->isEnabled()   ? QString()
                                   : entry->toolTip();
        menu.close();
        QCoreApplication::processEvents();
        return why;
    }

    bool HasEntry(const QString& text)
    {
        QMenu& menu = Menu();
        const bool has = Entry(menu, text);
        menu.close();
        QCoreApplication::processEvents();
        return has;
    }

    /// Opens the menu and goes to the entry with the keys.
    void Pick(const QString& text)
    {
        if (!PickByKeys(Menu(), text))
            throw std::runtime_error(text.toStdString());
    }

    int Calls(const char* member) { return int(host.Log().CallsTo(member).size()); }
    double Mode(qint32 layerID) { return Stored(layerID, "OverrideMode"); }
    std::vector<double> Modes() { return {Mode(1), Mode(2), Mode(3), Mode(4)}; }
};

} // namespace Orvane::Testing
