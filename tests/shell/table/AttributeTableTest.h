// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/attributes/TableFile.h"
#include "shell/features/FeatureSelection.h"
#include "shell/table/AttributeTable.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QSettings>
#include <QTableView>
#include <QTest>

#include <algorithm>
#include <gmock/gmock.h>
#include <memory>
#include <vector>

namespace Orvane::Testing {

inline const QString Brueck = QStringLiteral("Br\u00fcck");
inline const std::vector<QString> FileOrder = {"Ober", "Aue", "Zell", Brueck};

/// The table of the towns in a GeoPackage, and the actions of its user.
class AttributeTableTest : public testing::Test
{
protected:
    AttributeTableTest()
    {
        QSettings().clear();
        m_source = WriteTowns(m_folder, "towns.gpkg", "GPKG");
    }

    ~AttributeTableTest() override { delete m_table; }

    void Open(bool isSelectable = true)
    {
        m_table = new AttributeTable({"Towns", m_source, isSelectable}, m_features, nullptr);
        m_table->show();
        ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == m_table; }));
    }

    void OpenAndWait(bool isSelectable = true)
    {
        Open(isSelectable);
        m_tester = std::make_unique<QAbstractItemModelTester>(View().model());
        EXPECT_THAT(Names(), testing::ElementsAre("Ober", "Aue", "Zell", Brueck));
    }

    template <typename Widget> Widget& Part(const char* name) const
    {
        return *m_table->findChild<Widget*>(QLatin1String(name));
    }
    QTableView& View() const { return Part<QTableView>("tblRows"); }
    QString Cell(int row, int column) const { return View().model()->index(row, column).data().toString(); }

    // The first column, as soon as the table is at rest.
    std::vector<QString> Names() const
    {
        EXPECT_TRUE(QTest::qWaitFor([&] { return IsAtRest(); }));
        return Shown();
    }
    bool IsAtRest() const
    {
        const std::vector<QString> names = Shown();
        return !names.empty() && std::find(names.begin(), names.end(), "...") == names.end();
    }
    std::vector<QString> Shown() const
    {
        std::vector<QString> names;
        for (int row = 0; row < View().model()->rowCount(); ++row)
            names.push_back(Cell(row, 0));
        return names;
    }
    bool WaitFor(const std::vector<QString>& names) const
    {
        return QTest::qWaitFor([&] { return Shown() == names; });
    }

    void ClickHeader(int column) const
    {
        const QHeaderView& header = *View().horizontalHeader();
        QTest::mouseClick(
            header.viewport(), Qt::LeftButton, {},
            {header.sectionViewportPosition(column) + 8, header.height() / 2});
    }
    void ClickRow(int row, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::mouseClick(
            View().viewport(), Qt::LeftButton, modifiers,
            View().visualRect(View().model()->index(row, 0)).center());
    }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    // Writes over the data while they are open; returns what was there.
    QByteArray SpoilData() const
    {
        QFile file(m_source.path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray content = file.readAll();
        Write(QByteArray(content.size(), 'x'));
        return content;
    }
    void Write(const QByteArray& content) const
    {
        QFile file(m_source.path);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        EXPECT_EQ(file.write(content), content.size());
    }
    QString Count() const { return Part<QLabel>("lblCount").text(); }

    DataFolder m_folder;
    LayerSource m_source;
    FeatureSelection m_features;
    AttributeTable* m_table = nullptr;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

} // namespace Orvane::Testing
