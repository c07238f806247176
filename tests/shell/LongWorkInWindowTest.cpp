// SPDX-License-Identifier: MIT
#include "hostkit/Impatience.h"
#include "mapkit/canvas/MapCanvas.h"
#include "mapkit/common/Progress.h"
#include "shell/MainWindowTest.h"
#include "store/sqlite/SqliteLayerDatabase.h"
#include "store/sqlite/files/LayerFileUse.h"

#include <OrvaneShellLib/Cancellation.h>
#include <OrvaneShellLib/RunTimeError.h>

#include <QApplication>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>

namespace Orvane {

using namespace Testing;

namespace {

// Cancels the work of that name as soon as it runs, even before its dialog is visible.
class Canceller
{
public:
    explicit Canceller(const QString& work)
    {
        QObject::connect(&m_timer, &QTimer::timeout, [work] {
            for (QWidget* window : QApplication::topLevelWidgets()) {
                auto* dialog = qobject_cast<QProgressDialog*>(window);
                if (dialog && dialog->labelText() == work)
                    emit dialog->canceled();
            }
        });
        m_timer.start(0);
    }

private:
    QTimer m_timer;
};

/// Long work in Orvane's window, which the user cancels.
class LongWorkInWindow : public MainWindowTest
{
protected:
    QStringList SomeFiles(int count)
    {
        QStringList paths;
        for (int i = 0; i < count; ++i)
            paths << m_folder.WriteSquare(QString::number(i) + ".geojson");
        return paths;
    }
    QStringList ThousandFiles() { return SomeFiles(1000); }

    // Whether act ended because the user cancelled.
    static bool IsCancelled(const std::function<void()>& act)
    {
        try {
            act();
        } catch (const RunTimeError& error) {
            EXPECT_TRUE(IsCancellation(error)) << error.what();
            return true;
        }
        return false;
    }
};

} // namespace

TEST_F(LongWorkInWindow, AThousandFilesCanBeCancelledWhileTheyAreOpened)
{
    const QStringList paths = ThousandFiles();
    QTimer user;
    QObject::connect(&user, &QTimer::timeout, [&] {
        auto* dialog = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
        if (dialog && dialog->isVisible())
            dialog->findChild<QPushButton*>()->click();
    });
    user.start(1);
    bool cancelled = false;
    try {
        m_window->AddData(paths);
    } catch (const Cancelled&) {
        cancelled = true;
    }
    const size_t shown = m_window->Canvas().Layers().size();
    EXPECT_TRUE(shown == 0 || (shown == 1000 && !cancelled)) << shown; // none, or the work was done before
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(LongWorkInWindow, CancellingWhileFilesAreLookedIntoLeavesTheMapAsItWas)
{
    m_window->OpenMap(MakeMap("map.orvane"));
    const Canceller user("Opening map data");
    EXPECT_THROW(m_window->AddData(ThousandFiles()), Cancelled);
    EXPECT_EQ(m_window->Canvas().Layers().size(), 1u);
    EXPECT_EQ(Count("Layers"), 1);
    EXPECT_EQ(Count("LayerGroups"), 0);
    EXPECT_FALSE(Action("actUndo")->isEnabled());
}

TEST_F(LongWorkInWindow, CancellingWhileFilesAreReadLeavesTheMapAsItWas)
{
    m_window->OpenMap(MakeMap("map.orvane"));
    const MapView view = m_window->Canvas().View();
    const Canceller user("Reading map data");
    EXPECT_THROW(m_window->AddData(ThousandFiles()), Cancelled);
    EXPECT_EQ(m_window->Canvas().Layers().size(), 1u);
    EXPECT_EQ(Count("Layers"), 1);
    EXPECT_EQ(Count("LayerGroups"), 0);
    EXPECT_EQ(Count("LayerSources"), 1);
    EXPECT_EQ(m_window->Canvas().View(), view);
    EXPECT_FALSE(Action("actUndo")->isEnabled());
    EXPECT_FALSE(Action("actRedo")->isEnabled());
}

// At every place where the user can press Cancel while the layers are stored.
TEST_F(LongWorkInWindow, CancellingWhileLayersAreAddedLeavesTheMapAsItWas)
{
    const QStringList paths = SomeFiles(50);
    const Impatience now;
    bool done = false;
    for (int last = 0; !done; last += 1 + last / 3) {
        const AtEachLook user([last, look = 0](QProgressDialog& dialog, int) mutable {
            if (dialog.labelText() == "Adding layers to the map" && look++ == last)
                PressCancel(dialog);
        });
        done = !IsCancelled([&] { m_window->AddData(paths); });
        EXPECT_EQ(Count("Layers"), done ? 50 : 0) << last;
        EXPECT_EQ(Count("LayerGroups"), done ? 50 : 0) << last;
        EXPECT_EQ(m_window->Document().System().isEmpty(), !done) << last;
        EXPECT_EQ(Action("actUndo")->isEnabled(), done) << last;
        EXPECT_FALSE(Action("actRedo")->isEnabled()) << last;
    }
    EXPECT_EQ(m_window->Canvas().Layers().size(), 50u);
}

TEST_F(LongWorkInWindow, CancellingWhileAMapIsOpenedKeepsTheOtherMap)
{
    m_window->OpenMap(MakeMap("map.orvane"));
    const QString other = m_folder.Path("other.orvane");
    {
        const auto document = MapDocument::Create(other);
        NewLayer layer;
        layer.ogrLayer = "0";
        for (const QString& path : ThousandFiles()) {
            layer.path = path;
            document->AddLayer(layer);
        }
    }
    const Canceller user("Reading map data");
    EXPECT_THROW(m_window->OpenMap(other), Cancelled);
    EXPECT_EQ(m_window->Document().Path(), m_folder.Path("map.orvane"));
    EXPECT_EQ(m_window->Canvas().Layers().size(), 1u);
    EXPECT_FALSE(IsLayerFileInUse(other));
}

TEST_F(LongWorkInWindow, TheRowsOfAMapAreReadWithProgressThatCannotBeCancelled)
{
    const QString map = MakeMap("map.orvane");
    MapDocument::Open(map)->Database().Execute(
        "WITH RECURSIVE N(i) AS (SELECT 2 UNION ALL SELECT i + 1 FROM N WHERE i < 300)"
        " INSERT INTO Layers (LayerID, Name) SELECT i, 'Layer ' || i FROM N");
    const Impatience now;
    int looks = 0;
    const AtEachLook user([&](QProgressDialog& dialog, int) {
        if (dialog.labelText() != "Reading the map")
            return;
        ++looks;
        EXPECT_EQ(dialog.findChild<QPushButton*>(), nullptr);
        dialog.close();
    });
    m_window->OpenMap(map);
    EXPECT_GT(looks, 0);
    EXPECT_EQ(m_window->Canvas().Layers().size(), 300u);
}

} // namespace Orvane
