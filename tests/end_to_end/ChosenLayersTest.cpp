// SPDX-License-Identifier: MIT
#include "end_to_end/TownWindow.h"
#include "mapkit/canvas/MapCanvas.h"

#include <QContextMenuEvent>
#include <QTreeWidget>

namespace Orvane::Testing {

namespace {

/// The town's map, and a user who goes from a layer in the layer control to the map and to the guide.
class ChosenLayers : public TownWindow
{
protected:
    void SetUp() override
    {
        TownWindow::SetUp();
        OpenLayerControl();
        m_window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_window.get()));
    }

    void TearDown() override
    {
        m_window->close();
        QSettings().clear();
    }

    QAction& ZoomToLayer() { return *m_window->findChild<QAction*>("actZoomLayer"); }

    // Opens the menu of the list by the Menu key.
    QStringList MenuOfList()
    {
        auto& tree = Find<QTreeView>(Form(), "tvLayers2");
        QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, tree.mapToGlobal(tree.rect().center()));
        QApplication::sendEvent(&tree, &event);
        QWidget* menu = nullptr;
        EXPECT_TRUE(QTest::qWaitFor([&] { return (menu = QApplication::activePopupWidget()) != nullptr; }));
        QStringList texts;
        for (const QAction* action : menu->actions())
            texts << action->text();
        menu->close();
        return texts;
    }
};

} // namespace

TEST_F(ChosenLayers, CanBeShownOnTheMap)
{
    EXPECT_FALSE(ZoomToLayer().isEnabled());
    ClickLayer(Form(), "Cemetery");
    ASSERT_TRUE(QTest::qWaitFor([this] { return ZoomToLayer().isEnabled(); }));
    const double before = m_window->Canvas().ScaleDenominator();
    QTest::keyClick(&Find<QTreeView>(Form(), "tvLayers2"), Qt::Key_L, Qt::ControlModifier);
    EXPECT_LT(m_window->Canvas().ScaleDenominator(), before / 2);
}

TEST_F(ChosenLayers, AreNoLongerChosenWhenTheLayerControlIsClosed)
{
    ClickLayer(Form(), "Cemetery");
    ASSERT_TRUE(QTest::qWaitFor([this] { return ZoomToLayer().isEnabled(); }));
    Trigger("actLayerControl"); // goes there
    Trigger("actLayerControl"); // and closes it
    EXPECT_TRUE(QTest::qWaitFor([this] { return !ZoomToLayer().isEnabled(); }));
}

TEST_F(ChosenLayers, AreThoseOfTheEditorInWhichTheUserClicksLast)
{
    const auto chosen = [this] { return m_window->Session().Shell().ChosenLayers(); };
    ClickLayer(Form(), "Cemetery");
    ASSERT_TRUE(QTest::qWaitFor([&] { return chosen().size() == 1; }));
    const std::vector<qint32> cemetery = chosen();
    AnswerPrompt("Town");
    Choose("menuThemes", "New Theme");
    QWidget* theme = Form("Theme Control: Town");
    ASSERT_TRUE(theme);
    ClickLayer(theme, Listed(theme).first());
    ASSERT_TRUE(QTest::qWaitFor([&] { return chosen() != cemetery; }));
    ClickLayer(Form(), "Cemetery"); // it is still marked there
    EXPECT_TRUE(QTest::qWaitFor([&] { return chosen() == cemetery; }));
    ClickLayer(theme, Listed(theme).first());
    ASSERT_TRUE(QTest::qWaitFor([&] { return chosen() != cemetery; }));
    theme->close();
    EXPECT_TRUE(QTest::qWaitFor([&] { return chosen() == cemetery; })) << "the other editor is still open";
}

TEST_F(ChosenLayers, HaveTheSameCommandsAsOnTheMap)
{
    ClickLayer(Form(), "Cemetery");
    const QStringList texts = MenuOfList();
    EXPECT_EQ(
        texts.mid(texts.size() - 5),
        QStringList(
            {"Zoom to Layer", "Attribute Table", "Layer Rendering...", "Layer Properties...",
             "Open Folder"}));
}

TEST_F(ChosenLayers, LeadToTheGuidesSectionAboutStyling)
{
    ClickLayer(Form(), "Cemetery");
    QTest::keyClick(&Find<QTreeView>(Form(), "tvLayers2"), Qt::Key_F1);
    QTreeWidget* contents = nullptr;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == "GuideWindow" && window->isVisible())
            contents = window->findChild<QTreeWidget*>("tvContents");
    }
    ASSERT_NE(contents, nullptr);
    ASSERT_NE(contents->currentItem(), nullptr);
    EXPECT_EQ(contents->currentItem()->text(0), "3. Style the layers");
}

} // namespace Orvane::Testing
