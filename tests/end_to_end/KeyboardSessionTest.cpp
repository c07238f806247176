// SPDX-License-Identifier: MIT
// The work of a user without a mouse, on a map of 5,000 layers.
#include "end_to_end/CityMap.h"
#include "end_to_end/KeyboardUser.h"
#include "end_to_end/TownWindow.h"
#include "mapkit/canvas/MapCanvas.h"

#include <QComboBox>
#include <QTableView>
#include <QToolButton>

namespace Orvane {

using namespace Testing;

namespace {

constexpr auto PipesOnly = "Layers WHERE Name LIKE 'Water pipe%'";
constexpr QRgb Red = 0xffff0000;
constexpr qint32 StoredRed = 0x0000ff;

class KeyboardSession : public TownWindow
{
protected:
    void SetUp() override
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder.path());
        QSettings().setValue("LayerControl/Docked", false); // its keys end with the window
        QFile::remove(StartupFile());
        m_map = PathOf("town.orvane");
        CityMap::Make(m_map);
        m_window = std::make_unique<MainWindow>();
        m_window->resize(1000, 700);
        m_window->show();
        m_window->OpenMap(MapPath());
        m_window->activateWindow();
        KeyboardUser::Await("MainWindow");
    }

    void TearDown() override
    {
        if (m_window)
            m_window->close();
    }

    // What the session must bring back.
    QString Settings()
    {
        return Text("LayerID || ' ' || Name || ' ' || Color || ' ' || MinVisScale", "Layers");
    }
    QString Modes() { return Text("LayerID || ' ' || OverrideMode", "Layers"); }
    QString Text(const QString& column, const QString& table)
    {
        return ToText(Database()
                          .OpenQuery("SELECT group_concat(" + column + ", ';') AS Rows FROM " + table)
                          ->Field("Rows"));
    }

    QImage Map()
    {
        MapCanvas& canvas = m_window->Canvas();
        KeyboardUser::See("a drawn map", [&] {
            return !canvas.Picture().IsBusy() && canvas.Picture().ImageView() == canvas.View();
        });
        return canvas.grab().toImage().convertToFormat(QImage::Format_RGB32);
    }

    static int CountPixels(const QImage& image, QRgb colour)
    {
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                count += image.pixel(x, y) == colour;
        }
        return count;
    }

    static QTreeView& Tree() { return Find<QTreeView>(Form(), "tvLayers2"); }
    static qsizetype Chosen() { return Tree().selectionModel()->selectedIndexes().size(); }
    QString UndoText() { return m_window->findChild<QAction*>("actUndo")->toolTip(); }
    int Hidden() { return Count(QStringLiteral("Layers WHERE OverrideMode = 2")); }

    static QString BarText()
    {
        auto& bar = Find(Form(), "tvLayers2_shown");
        return bar.isVisible() ? bar.findChild<QLabel*>()->text() : QString();
    }

    void FindThePipes();
    void StyleThePipes();
    void LookAtThemAlone();
    void ComeBack();
    void KeepAsScheme();
    void CompareWithYesterday();
    void TakeBackAll();

    KeyboardUser m_user;
};

void KeyboardSession::FindThePipes()
{
    m_user.Press("Ctrl+F p i p e");
    EXPECT_EQ(Find<QLabel>(Form(), "lblFound2").text(), "37 of 5,000");
    m_user.Press("Return Ctrl+A");
    EXPECT_EQ(Chosen(), CityMap::Pipes);
}

void KeyboardSession::StyleThePipes()
{
    const QString before = Settings();
    m_user.Press("Alt+N Down Down Down Down Down Down");
    m_user.Press("Alt+M [frmDropSlider] 1 0 0 0 Return [frmLayerStyles]");
    m_user.Press("Alt+X [frmDropSlider] 5 0 0 0 0 Return [frmLayerStyles]");
    EXPECT_TRUE(Settings() == before) << "nothing is stored before Apply";
    m_user.Press("Alt+A");
    KeyboardUser::See("applied changes", [this] { return UndoText() == "Undo Change 37 Layers"; });
    const QString wanted
        = QStringLiteral(" AND Color = %1 AND MinVisScale = 1000 AND MaxVisScale = 50000").arg(StoredRed);
    EXPECT_EQ(Count(PipesOnly + wanted), CityMap::Pipes);
    EXPECT_EQ(Count(QStringLiteral("Layers WHERE Color = %1").arg(StoredRed)), CityMap::Pipes);
    const QImage map = Map();
    EXPECT_GT(CountPixels(map, Red), 0);
    EXPECT_GT(CountPixels(map, CityMap::PlotColour), 0);
}

void KeyboardSession::LookAtThemAlone()
{
    m_user.Press("Ctrl+F Tab Shift+F10 [mnuTree] Down Down Down Down Down Return");
    KeyboardUser::See("the bar", [] { return !BarText().isEmpty(); });
    EXPECT_EQ(BarText(), "Only 37 of 5,000 layers are shown.");
    EXPECT_EQ(Hidden(), CityMap::Layers - CityMap::Pipes);
    const QImage map = Map();
    EXPECT_GT(CountPixels(map, Red), 0);
    EXPECT_EQ(CountPixels(map, CityMap::PlotColour), 0);
}

void KeyboardSession::ComeBack()
{
    m_user.Press("Tab Space");
    KeyboardUser::See("the list without its bar", [] { return BarText().isEmpty(); });
}

void KeyboardSession::KeepAsScheme()
{
    m_user.Press("Backtab Right Alt+N [TextPrompt] p i p e s Return [frmLayerStyles]");
    EXPECT_EQ(Find<QComboBox>(Form(), "cmbScheme").currentText(), "pipes");
}

void KeyboardSession::CompareWithYesterday()
{
    QString scheme;
    QString count;
    m_user.Press("Alt+M [dlgSchemeManager] Down Alt+P ? Escape [frmLayerStyles]", [&] {
        QWidget* manager = QApplication::activeModalWidget();
        scheme = Find<QComboBox>(manager, "cmbTo").currentText();
        count = Find<QLabel>(manager, "lblDifferences").text();
        return Find(manager, "tblDifferences").isVisible() && count != "Differences: 0";
    });
    EXPECT_EQ(scheme, "Standard");
    EXPECT_EQ(count, "Differences: 111");
}

void KeyboardSession::TakeBackAll()
{
    m_user.Press("Escape [MainWindow] Alt+E [menuEdit] E");
    EXPECT_EQ(UndoText(), "Undo");
}

} // namespace

TEST_F(KeyboardSession, FindsStylesShowsAloneKeepsComparesAndUndoes)
{
    const QString settings = Settings();
    const QString modes = Modes();
    const QImage before = Map();
    m_user.Press("F4 [frmLayerStyles]");
    const int schemes = Count("LayerSchemes");
    FindThePipes();
    StyleThePipes();
    const QImage styled = Map();
    LookAtThemAlone();
    ComeBack();
    EXPECT_TRUE(Modes() == modes);
    EXPECT_TRUE(Map() == styled);
    KeepAsScheme();
    EXPECT_EQ(Count("LayerSchemes"), schemes + 1);
    CompareWithYesterday();
    TakeBackAll();
    EXPECT_TRUE(Settings() == settings);
    EXPECT_TRUE(Modes() == modes);
    EXPECT_EQ(Count("LayerSchemes"), schemes);
    EXPECT_TRUE(Map() == before);
    EXPECT_LE(m_user.Count(), 56);
}

} // namespace Orvane
