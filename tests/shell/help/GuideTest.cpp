// SPDX-License-Identifier: MIT
#include "mapkit/canvas/MapCanvas.h"
#include "shell/MainWindowTest.h"
#include "shell/help/GuideBrowser.h"
#include "shell/help/GuidePlaces.h"
#include "shell/help/GuideWindow.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDialog>
#include <QLineEdit>
#include <QPointer>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTimer>
#include <QTreeWidget>

#include <gmock/gmock.h>

namespace Orvane {

using namespace Testing;

namespace {

QPointer<GuideWindow> ShownGuide()
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        auto* guide = qobject_cast<GuideWindow*>(window);
        if (guide && guide->isVisible())
            return guide;
    }
    return nullptr;
}

QString ShownSection()
{
    const QPointer<GuideWindow> guide = ShownGuide();
    const auto* item = guide ? guide->findChild<QTreeWidget*>("tvContents")->currentItem() : nullptr;
    return item ? item->text(0) : QString();
}

class GuideTest : public MainWindowTest
{
protected:
    GuideTest()
    {
        m_window->activateWindow();
        EXPECT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == m_window.get(); }));
    }

    static void ClickContents(const QString& heading)
    {
        auto* contents = ShownGuide()->findChild<QTreeWidget*>("tvContents");
        const auto found = contents->findItems(heading, Qt::MatchExactly);
        ASSERT_EQ(found.size(), 1);
        QTest::mouseClick(
            contents->viewport(), Qt::LeftButton, {}, contents->visualItemRect(found.first()).center());
    }

    void PressF1() { QTest::keyClick(m_window->windowHandle(), Qt::Key_F1); }
};

} // namespace

TEST(GuidePlacesTest, NamesASectionAsAWebPageDoes)
{
    EXPECT_EQ(GuidePlaces::SectionOf("3. Style the layers"), "3-style-the-layers");
    EXPECT_EQ(GuidePlaces::SectionOf("Labels, classes, lines with edges"), "labels-classes-lines-with-edges");
}

TEST(GuidePlacesTest, KnowsOnlySectionsThatTheGuideHas)
{
    GuideBrowser browser;
    browser.ShowPage(GuideWindow::FirstPage());
    QStringList sections;
    for (const GuideBrowser::Heading& heading : browser.Headings())
        sections << GuidePlaces::SectionOf(heading.text);
    for (const QString& section : GuidePlaces::Sections())
        EXPECT_TRUE(sections.contains(section)) << qPrintable(section);
}

TEST(GuidePlacesTest, FindsTheSectionOfTheNearestParent)
{
    QWidget form;
    form.setObjectName("frmLayerStyles");
    auto* schemes = new QWidget(&form);
    schemes->setObjectName("picScheme");
    const auto* list = new QLineEdit(schemes);
    EXPECT_EQ(GuidePlaces::SectionAt(list), "4-save-two-looks");
    EXPECT_EQ(GuidePlaces::SectionAt(&form), "3-style-the-layers");
    EXPECT_EQ(GuidePlaces::SectionAt(nullptr), "");
}

TEST(GuideBrowserTest, ScrollsToASection)
{
    GuideBrowser browser;
    browser.resize(600, 400);
    browser.show();
    browser.ShowPage(GuideWindow::FirstPage());
    browser.ShowSection("4-save-two-looks");
    const int fourth = browser.verticalScrollBar()->value();
    browser.ShowSection("3-style-the-layers");
    const int third = browser.verticalScrollBar()->value();
    EXPECT_GT(third, 0);
    EXPECT_GT(fourth, third);
    browser.ShowSection("no-such-section");
    EXPECT_EQ(browser.verticalScrollBar()->value(), 0);
}

TEST(GuideBrowserTest, ShowsThePicturesOfThePage)
{
    GuideBrowser browser;
    browser.ShowPage(GuideWindow::FirstPage());
    const QVariant picture
        = browser.document()->resource(QTextDocument::ImageResource, QUrl("pictures/data.png"));
    EXPECT_FALSE(picture.value<QImage>().isNull());
    EXPECT_LE(picture.value<QImage>().width(), 640);
}

TEST(GuideBrowserTest, SaysThatAPageCannotBeRead)
{
    GuideBrowser browser;
    EXPECT_THROW(browser.ShowPage("/no/such/page.md"), RunTimeError);
}

TEST_F(GuideTest, OpensAtMovingForTheMapAndAtToolsForATool)
{
    m_window->Canvas().setFocus();
    PressF1();
    EXPECT_EQ(ShownSection(), "Move around the map");
    ShownGuide()->close();
    m_window->activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == m_window.get(); }));
    Action("actIdentify")->trigger();
    PressF1();
    EXPECT_EQ(ShownSection(), "Use the tools on the map");
}

TEST_F(GuideTest, OpensAtTheAttributeTableInItsWindow)
{
    m_window->OpenMap(MakeMap("map.orvane"));
    QTest::keyClick(m_window->windowHandle(), Qt::Key_F6);
    auto* table = m_window->findChild<QWidget*>("AttributeTable");
    ASSERT_NE(table, nullptr);
    ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == table; }));
    QTest::keyClick(table->windowHandle(), Qt::Key_F1);
    EXPECT_EQ(ShownSection(), "The attribute table");
}

TEST_F(GuideTest, OpensAtCoordinateSystemsWhereOneIsChosen)
{
    QString section;
    QTimer::singleShot(0, m_window.get(), [&] {
        QWidget* chooser = QApplication::activeModalWidget();
        ASSERT_NE(chooser, nullptr);
        EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == chooser; }));
        QTest::keyClick(chooser->focusWidget(), Qt::Key_F1);
        section = ShownSection();
        QTest::keyClick(chooser, Qt::Key_Escape);
    });
    QTest::mouseClick(m_window->findChild<QWidget*>("cmdMapSystem"), Qt::LeftButton);
    EXPECT_EQ(section, "Coordinate systems");
}

TEST_F(GuideTest, ShowsTheSectionThatIsChosenInTheContents)
{
    PressF1();
    ClickContents("5. Export and print");
    EXPECT_GT(ShownGuide()->Browser().verticalScrollBar()->value(), 0);
}

TEST_F(GuideTest, GoesBackAndForwardByKeysToWhereTheReaderWas)
{
    m_window->Canvas().setFocus();
    PressF1();
    GuideWindow& guide = *ShownGuide();
    ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &guide; }));
    QScrollBar& bar = *guide.Browser().verticalScrollBar();
    bar.setValue(bar.value() + 120);
    const int left = bar.value();
    ClickContents("5. Export and print");
    EXPECT_EQ(ShownSection(), "5. Export and print");
    QTest::keyClick(guide.windowHandle(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(ShownSection(), "Move around the map");
    EXPECT_EQ(bar.value(), left);
    QTest::keyClick(guide.windowHandle(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(ShownSection(), "Move around the map") << "where the reader began";
    QTest::keyClick(guide.windowHandle(), Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(ShownSection(), "5. Export and print");
    EXPECT_FALSE(guide.findChild<QAction*>("actForward")->isEnabled());
    QTest::keyClick(guide.windowHandle(), Qt::Key_Home, Qt::AltModifier);
    EXPECT_EQ(bar.value(), 0);
}

TEST_F(GuideTest, GoesBackFromAnotherPageByTheSideButtonOfTheMouse)
{
    m_window->Canvas().setFocus();
    PressF1();
    GuideWindow& guide = *ShownGuide();
    ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &guide; }));
    QTest::keyClick(guide.windowHandle(), Qt::Key_Home, Qt::AltModifier);
    QTest::keyClick(&guide.Browser(), Qt::Key_Tab); // to the first link
    QTest::keyClick(&guide.Browser(), Qt::Key_Return);
    const auto page = [&] { return guide.Browser().document()->baseUrl().fileName(); };
    EXPECT_EQ(page(), "qgis.md");
    QTest::mouseClick(guide.Browser().viewport(), Qt::BackButton);
    EXPECT_EQ(page(), "README.md");
    QTest::mouseClick(guide.Browser().viewport(), Qt::BackButton);
    EXPECT_EQ(ShownSection(), "Move around the map");
    QTest::mouseClick(guide.Browser().viewport(), Qt::ForwardButton);
    QTest::mouseClick(guide.Browser().viewport(), Qt::ForwardButton);
    EXPECT_EQ(page(), "qgis.md");
}

TEST_F(GuideTest, FindsWordsWhileTheyAreTyped)
{
    PressF1();
    GuideWindow& guide = *ShownGuide();
    ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &guide; }));
    QTest::keyClick(guide.windowHandle(), Qt::Key_Home, Qt::AltModifier);
    QTest::keyClick(guide.windowHandle(), Qt::Key_F, Qt::ControlModifier);
    auto* field = guide.findChild<QLineEdit*>("edtFind");
    ASSERT_EQ(QApplication::focusWidget(), field);
    const QTextBrowser& browser = guide.Browser();
    QTest::keyClicks(field, "wheel");
    EXPECT_EQ(browser.textCursor().selectedText().toLower(), "wheel");
    const int first = browser.textCursor().position();
    QTest::keyClick(field, Qt::Key_Return);
    const int second = browser.textCursor().position();
    EXPECT_GT(second, first);
    QTest::keyClick(guide.windowHandle(), Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(browser.textCursor().position(), first);
    QTest::keyClick(guide.windowHandle(), Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_GT(browser.textCursor().position(), second) << "the last one comes before the first one";
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_EQ(field->text(), "");
    EXPECT_EQ(QApplication::focusWidget(), &guide.Browser());
}

TEST_F(GuideTest, FindsWordsFromTheSectionThatIsShown)
{
    m_window->Canvas().setFocus();
    PressF1();
    const QTextCursor heading = ShownGuide()->Browser().textCursor();
    EXPECT_EQ(heading.block().text(), "Move around the map");
    QTest::keyClicks(ShownGuide()->findChild<QLineEdit*>("edtFind"), "wheel");
    EXPECT_GT(ShownGuide()->Browser().textCursor().position(), heading.position());
}

TEST_F(GuideTest, SaysThatWordsAreNotThere)
{
    PressF1();
    GuideWindow& guide = *ShownGuide();
    auto* field = guide.findChild<QLineEdit*>("edtFind");
    const auto* answer = guide.findChild<QLabel*>("lblFound");
    QTest::keyClicks(field, "wheelx");
    EXPECT_EQ(answer->text(), "Not found");
    QTest::keyClick(field, Qt::Key_Backspace);
    EXPECT_EQ(answer->text(), "");
}

TEST_F(GuideTest, ClosesAtEscape)
{
    PressF1();
    QTest::keyClick(ShownGuide(), Qt::Key_Escape);
    EXPECT_EQ(ShownGuide(), nullptr);
}

TEST_F(GuideTest, CanBeReadWhileADialogWaits)
{
    QDialog dialog(m_window.get());
    dialog.setObjectName("PageDialog");
    auto* field = new QLineEdit(&dialog);
    QString section;
    bool isReachable = false;
    QTimer::singleShot(0, &dialog, [&] {
        EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &dialog; }));
        QTest::keyClick(field, Qt::Key_F1);
        section = ShownSection();
        isReachable = ShownGuide() && ShownGuide()->parentWidget() == &dialog;
        dialog.reject();
    });
    dialog.exec();
    EXPECT_EQ(section, "5. Export and print");
    EXPECT_TRUE(isReachable);
}

TEST_F(GuideTest, DoesNotKeepTheProgramOpen)
{
    PressF1();
    EXPECT_FALSE(ShownGuide()->testAttribute(Qt::WA_QuitOnClose));
    m_window.reset();
    EXPECT_EQ(ShownGuide(), nullptr);
}

} // namespace Orvane
