// SPDX-License-Identifier: MIT
#include "shell/output/OutputActions.h"

#include "mapkit/DataFolder.h"
#include "mapkit/RasterFile.h"
#include "mapkit/document/MapDocument.h"
#include "shell/MainWindow.h"
#include "shell/map/MapSession.h"
#include "shell/output/PageDialog.h"
#include "store/ILayerStore.h"
#include "support/MessageBoxRobot.h"

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QImage>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QSettings>
#include <QTest>
#include <QTimer>
#include <QToolBar>

namespace Orvane {

using namespace Testing;

namespace {

/// Answers the dialogs of an output command as they open.
class User : public QObject
{
public:
    /// file: to be typed into the file dialog; empty to cancel there.
    explicit User(const QString& file = {}) : m_file(file)
    {
        connect(&m_look, &QTimer::timeout, this, [this] { Answer(QApplication::activeModalWidget()); });
        m_look.start(5);
    }

    QStringList seen; ///< the dialogs, in their order
    int pages = 0; ///< of the preview
    bool showsAllTools = false; ///< the preview
    bool showsAPage = false; ///< the preview

private:
    // A dialog that an answer did not close is cancelled, so that no test waits for ever.
    void Answer(QWidget* dialog)
    {
        auto* shown = qobject_cast<QDialog*>(dialog);
        if (!shown)
            return;
        if (shown == m_answered)
            return shown->reject();
        m_answered = shown;
        if (auto* page = qobject_cast<PageDialog*>(shown))
            Accept(*page);
        else if (auto* files = qobject_cast<QFileDialog*>(shown))
            Choose(*files);
        else if (auto* preview = qobject_cast<QPrintPreviewDialog*>(shown))
            Look(*preview);
    }

    void Accept(PageDialog& page)
    {
        seen << "page";
        QTest::keyClick(&page, Qt::Key_Enter);
    }

    void Choose(QFileDialog& files)
    {
        seen << "file";
        if (m_file.isEmpty())
            return files.reject();
        auto* name = files.findChild<QLineEdit*>("fileNameEdit");
        name->setText(m_file);
        QTest::keyClick(name, Qt::Key_Enter);
    }

    void Look(QPrintPreviewDialog& preview)
    {
        seen << "preview";
        const auto* tools = preview.findChild<QToolBar*>();
        showsAPage = preview.height() * 2 > preview.screen()->availableSize().height();
        showsAllTools = tools->width() >= tools->sizeHint().width();
        pages = preview.findChild<QPrintPreviewWidget*>()->pageCount();
        preview.reject();
    }

    QString m_file;
    QPointer<QDialog> m_answered;
    QTimer m_look;
};

class OutputActionsTest : public testing::Test
{
protected:
    OutputActionsTest()
    {
        QSettings().clear();
        m_window = std::make_unique<MainWindow>();
        m_window->show();
        auto document = MapDocument::Create(m_folder.Path("town.orvane"));
        NewLayer layer;
        layer.name = "Square";
        layer.values.fillForeColor = 0x0000FF;
        layer.path = m_folder.WriteSquare("square.geojson");
        layer.ogrLayer = "square";
        document->SetSystem("EPSG:4326");
        document->AddLayer(layer);
        document.reset();
        m_window->OpenMap(m_folder.Path("town.orvane"));
    }
    ~OutputActionsTest() override { QSettings().clear(); }

    // Returns when the window has told the damage.
    void AddDamagedRaster()
    {
        WriteDamagedRaster(m_folder.Path("photo.tif"));
        NewLayer raster = NewLayer::OfRaster();
        raster.name = "Photo";
        raster.path = m_folder.Path("photo.tif");
        m_window->Document().AddLayer(raster);
        MessageBoxRobot told{BoxKey::Enter};
        m_window->Session().ReadAndShow(MapSession::View::All);
        ASSERT_TRUE(QTest::qWaitFor([&] { return told.Boxes().size() == 1; }));
        EXPECT_TRUE(told.Only().text.contains("photo.tif"));
    }

    void Trigger(const char* action) const { m_window->findChild<QAction*>(action)->trigger(); }

    DataFolder m_folder;
    std::unique_ptr<MainWindow> m_window;
};

} // namespace

TEST_F(OutputActionsTest, TheCommandsAreInTheFileMenu)
{
    const QList<QAction*> actions = m_window->findChild<QMenu*>("menuFile")->actions();
    EXPECT_TRUE(actions.contains(m_window->findChild<QAction*>("actExport")));
    EXPECT_TRUE(actions.contains(m_window->findChild<QAction*>("actPrint")));
    EXPECT_EQ(actions.last(), m_window->findChild<QAction*>("actQuit"));
}

TEST_F(OutputActionsTest, TheMapThatIsShownIsExported)
{
    QSettings().setValue("Output/Resolution", 50);
    User user(m_folder.Path("town.png"));
    Trigger("actExport");
    EXPECT_EQ(user.seen, QStringList({"page", "file"}));
    const QImage image(m_folder.Path("town.png"));
    EXPECT_EQ(image.size(), QSize(585, 413));
    EXPECT_EQ(image.pixelColor(200, 210), QColor(Qt::red));
}

TEST_F(OutputActionsTest, TheFormatAndTheFolderAreRemembered)
{
    QSettings().setValue("Output/Resolution", 50);
    {
        const User user(m_folder.Path("first.svg"));
        Trigger("actExport");
    }
    EXPECT_EQ(QSettings().value("Output/Format").toString(), "svg");
    EXPECT_EQ(QSettings().value("Output/Folder").toString(), QFileInfo(m_folder.Path("x")).absolutePath());
    const User user("second");
    Trigger("actExport");
    EXPECT_TRUE(QFile::exists(m_folder.Path("second.svg")));
}

TEST_F(OutputActionsTest, CancellingWritesNothing)
{
    const User user;
    Trigger("actExport");
    EXPECT_EQ(user.seen, QStringList({"page", "file"}));
    EXPECT_TRUE(QDir(m_folder.Path("")).entryList({"*.pdf"}).isEmpty());
}

TEST_F(OutputActionsTest, WhatCannotBeWrittenIsTold)
{
    QFile blocked(m_folder.Path("town.gif"));
    const User user(blocked.fileName());
    MessageBoxRobot reader{BoxKey::Enter};
    Trigger("actExport");
    EXPECT_TRUE(reader.Only().text.contains("town.gif")) << reader.Only().text.toStdString();
    EXPECT_FALSE(blocked.exists());
}

TEST_F(OutputActionsTest, AMapWithADamagedRasterIsNotExportedAndTheRasterIsNamed)
{
    AddDamagedRaster();
    QSettings().setValue("Output/Resolution", 50);
    for (const char* name : {"town.png", "town.pdf"}) {
        MessageBoxRobot told{BoxKey::Enter};
        const User user(m_folder.Path(name));
        Trigger("actExport");
        EXPECT_TRUE(told.Only().text.contains("photo.tif")) << qPrintable(told.Only().text);
        EXPECT_FALSE(QFile::exists(m_folder.Path(name)));
    }
}

TEST_F(OutputActionsTest, AMapWithADamagedRasterIsNotPrintedAndTheRasterIsNamed)
{
    AddDamagedRaster();
    MessageBoxRobot told{BoxKey::Enter};
    const User user;
    Trigger("actPrint");
    EXPECT_TRUE(told.Only().text.contains("photo.tif")) << qPrintable(told.Only().text);
}

TEST_F(OutputActionsTest, AMapWithAHiddenDamagedRasterIsExported)
{
    AddDamagedRaster();
    m_window->Document().Database().Execute("UPDATE Layers SET Visible = 0 WHERE Name = 'Photo'");
    m_window->Session().ReadAndShow();
    QSettings().setValue("Output/Resolution", 50);
    const User user(m_folder.Path("town.png"));
    Trigger("actExport");
    EXPECT_TRUE(QFile::exists(m_folder.Path("town.png")));
}

TEST_F(OutputActionsTest, PrintingShowsAPreviewOfOnePage)
{
    const User user;
    Trigger("actPrint");
    EXPECT_EQ(user.seen, QStringList({"page", "preview"}));
    EXPECT_EQ(user.pages, 1);
    EXPECT_TRUE(user.showsAllTools);
    EXPECT_TRUE(user.showsAPage);
}

} // namespace Orvane
