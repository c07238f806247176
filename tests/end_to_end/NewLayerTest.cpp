// SPDX-License-Identifier: MIT
#include "end_to_end/TownWindow.h"
#include "mapkit/RasterFile.h"
#include "mapkit/canvas/MapCanvas.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QRadioButton>

namespace Orvane {

using namespace Testing;

namespace {

class NewLayers : public TownWindow
{
protected:
    void SetUp() override
    {
        TownWindow::SetUp();
        OpenLayerControl();
        m_before = Count("Layers");
    }

    void TearDown() override
    {
        if (Form())
            Form()->close();
    }

    // Without the marks of layers that are out of scale: the map tells its scale when it has been drawn.
    QStringList ListedNames() const { return Listed(Form()).replaceInStrings("(OBS)", ""); }

    // The user's answers to the questions for a new layer.
    static void Answer(const std::function<void(QDialog& dialog)>& act, QDialogButtonBox::StandardButton end)
    {
        WhenAsked([=](QDialog& dialog) {
            act(dialog);
            QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(end), Qt::LeftButton);
            if (!dialog.isVisible())
                return;
            ADD_FAILURE() << "the dialog stayed open";
            dialog.reject();
        });
    }

    static void Type(QDialog& dialog, const char* field, const QString& text)
    {
        auto* line = dialog.findChild<QLineEdit*>(QLatin1String(field));
        line->selectAll();
        QTest::keyClicks(line, text);
    }

    static void TypeSource(QDialog& dialog, const QString& path)
    {
        QTest::mouseClick(dialog.findChild<QRadioButton*>("optSource"), Qt::LeftButton, {}, QPoint(8, 8));
        Type(dialog, "edtSource", path);
    }

    QString Write(const QString& name, const QByteArray& content) const
    {
        QFile file(PathOf(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }
    QString WriteTable(const QString& name, QPointF place) const
    {
        const auto number = [](double value) { return QByteArray::number(value, 'f', 3); };
        return Write(name, "x,y,name\n" + number(place.x()) + ',' + number(place.y()) + ",a\n");
    }
    Box Town() const
    {
        Box town;
        for (const MapLayer& layer : m_window->Canvas().Layers())
            town.Add(layer.Bounds());
        return town;
    }

    int m_before = 0;
};

} // namespace

TEST_F(NewLayers, AnEmptyLayerIsMadeShownAndStored)
{
    Answer(
        [](QDialog& dialog) {
            Type(dialog, "edtName", "Kiosks");
            dialog.findChild<QComboBox*>("cmbKind")->setCurrentIndex(1);
        },
        QDialogButtonBox::Ok);
    Press(Form(), "cmdNewLayer");
    EXPECT_TRUE(Listed(Form()).contains("Kiosks"));
    EXPECT_EQ(Count("Layers"), m_before + 1);
    EXPECT_EQ(Count("LayerSources WHERE OgrLayer = 'Kiosks'"), 1);
    EXPECT_TRUE(QFile::exists(PathOf("town-layers.gpkg")));
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_window->Canvas().Layers().size() == size_t(m_before + 1); }));
}

TEST_F(NewLayers, ALayerIsMadeOfAFileAndDrawn)
{
    QFile file(PathOf("square.geojson"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(R"({"type":"Polygon","coordinates":[[[0,0],[1,0],[1,1],[0,0]]]})");
    file.close();
    Answer([&](QDialog& dialog) { TypeSource(dialog, PathOf("square.geojson")); }, QDialogButtonBox::Ok);
    Press(Form(), "cmdNewLayer");
    ASSERT_TRUE(Listed(Form()).contains("square")) << qPrintable(Listed(Form()).join('\n'));
    const MapLayer& drawn = m_window->Canvas().Layers().back();
    ASSERT_TRUE(drawn.features);
    EXPECT_EQ(drawn.features->Features().size(), 1u);
}

TEST_F(NewLayers, AFileThatNamesNoCoordinateSystemIsToldAsOpenedDataAre)
{
    const QPointF corner(Town().maxX, Town().maxY);
    const QString path = WriteTable("kiosks.csv", corner);
    Answer([&](QDialog& dialog) { TypeSource(dialog, path); }, QDialogButtonBox::Ok);
    Press(Form(), "cmdNewLayer");
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_window->Canvas().Layers().size() == size_t(m_before + 1); }));
    EXPECT_TRUE(LabelText("lblNotice").contains("kiosks.csv")) << qPrintable(LabelText("lblNotice"));
    EXPECT_TRUE(LabelText("lblNotice").contains("The coordinates fit the map"));
    EXPECT_NEAR(m_window->Canvas().Layers().back().Bounds().maxX, corner.x(), 0.01);
}

TEST_F(NewLayers, AFileWhoseSystemIsNotFoundOutAsksForIt)
{
    const QString path = WriteTable("far.csv", {9e8, 9e8});
    QString question;
    Answer(
        [&](QDialog& dialog) {
            TypeSource(dialog, path);
            WhenAsked([&](QDialog& chooser) {
                question = chooser.windowTitle();
                QTest::keyClick(&chooser, Qt::Key_Escape);
            });
        },
        QDialogButtonBox::Ok);
    Press(Form(), "cmdNewLayer");
    EXPECT_EQ(question, "Coordinate System of the Data");
    EXPECT_TRUE(Listed(Form()).contains("far"));
    EXPECT_TRUE(LabelText("lblNotice").contains("taken as those of the map"));
}

TEST_F(NewLayers, ARasterAndOneKindOfAMixedFileAreOffered)
{
    const QString photo = PathOf("photo.tif");
    WriteRaster(photo, {}, [](int column, int, int) { return column; });
    const QString mixed = Write(
        "mixed.geojson",
        R"({"type":"GeometryCollection","geometries":[{"type":"Point","coordinates":[1,1]},)"
        R"({"type":"LineString","coordinates":[[0,0],[1,1]]}]})");
    Answer(
        [&](QDialog& dialog) {
            TypeSource(dialog, mixed);
            const auto& offered = *dialog.findChild<QComboBox*>("cmbSourceLayer");
            EXPECT_EQ(offered.count(), 2);
            EXPECT_EQ(offered.itemText(1), "mixed (lines)");
            Type(dialog, "edtSource", photo);
        },
        QDialogButtonBox::Ok);
    Press(Form(), "cmdNewLayer");
    ASSERT_TRUE(Listed(Form()).contains("photo")) << qPrintable(Listed(Form()).join('\n'));
    ASSERT_TRUE(QTest::qWaitFor([&] { return m_window->Canvas().Layers().size() == size_t(m_before + 1); }));
    EXPECT_TRUE(m_window->Canvas().Layers().back().raster);
}

TEST_F(NewLayers, CancellingMakesNothing)
{
    const QStringList listed = ListedNames();
    Answer([](QDialog& dialog) { Type(dialog, "edtName", "Kiosks"); }, QDialogButtonBox::Cancel);
    MessageBoxRobot nobody{};
    Press(Form(), "cmdNewLayer");
    EXPECT_EQ(ListedNames(), listed);
    EXPECT_EQ(Count("Layers"), m_before);
    EXPECT_FALSE(QFile::exists(PathOf("town-layers.gpkg")));
}

TEST_F(NewLayers, CancellingKeepsTheEditsOfTheCurrentLayer)
{
    ClickLayer(Form(), "Fields");
    ClickVisible(Form());
    Answer([](QDialog&) {}, QDialogButtonBox::Cancel);
    Press(Form(), "cmdNewLayer");
    EXPECT_TRUE(Find(Form(), "cmdApply").isEnabled());
    Press(Form(), "cmdCancel");
}

TEST_F(NewLayers, WithoutANameOrAFileThereIsNothingToAccept)
{
    Answer(
        [](QDialog& dialog) {
            QPushButton* accept = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
            EXPECT_FALSE(accept->isEnabled());
            Type(dialog, "edtName", "   ");
            EXPECT_FALSE(accept->isEnabled());
            Type(dialog, "edtName", "Kiosks");
            EXPECT_TRUE(accept->isEnabled());
            QTest::mouseClick(dialog.findChild<QRadioButton*>("optSource"), Qt::LeftButton, {}, QPoint(8, 8));
            EXPECT_FALSE(accept->isEnabled());
        },
        QDialogButtonBox::Cancel);
    Press(Form(), "cmdNewLayer");
}

TEST_F(NewLayers, AFileThatHoldsNoMapDataIsToldInTheDialog)
{
    Answer(
        [&](QDialog& dialog) {
            QFile file(PathOf("notes.txt"));
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            file.close();
            TypeSource(dialog, file.fileName());
            EXPECT_TRUE(dialog.findChild<QLabel*>("lblProblem")->text().contains("notes.txt"));
            EXPECT_FALSE(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->isEnabled());
        },
        QDialogButtonBox::Cancel);
    Press(Form(), "cmdNewLayer");
}

TEST_F(NewLayers, WhatCannotBeMadeIsToldAndAskedAgain)
{
    QFile file(PathOf("text.gpkg"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("a shopping list");
    file.close();
    MessageBoxRobot user{BoxKey::Enter};
    user.BeforeAnswer([](QMessageBox&) {
        Answer(
            [](QDialog& dialog) { EXPECT_EQ(dialog.findChild<QLineEdit*>("edtName")->text(), "Kiosks"); },
            QDialogButtonBox::Cancel);
    });
    Answer(
        [&](QDialog& dialog) {
            Type(dialog, "edtName", "Kiosks");
            Type(dialog, "edtPackage", PathOf("text.gpkg"));
        },
        QDialogButtonBox::Ok);
    Press(Form(), "cmdNewLayer");
    EXPECT_TRUE(user.Only().text.contains("text.gpkg"));
    EXPECT_EQ(Count("Layers"), m_before);
}

TEST_F(NewLayers, ALayerOfAThemesEditorJoinsTheTheme)
{
    AnswerPrompt("Town");
    Choose("menuThemes", "New Theme");
    QWidget* theme = Form("Theme Control: Town");
    theme->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(theme));
    Answer([](QDialog& dialog) { Type(dialog, "edtName", "Kiosks"); }, QDialogButtonBox::Ok);
    Press(theme, "cmdNewLayer");
    EXPECT_TRUE(Listed(theme).contains("Kiosks"));
    EXPECT_EQ(Count("ThemeLayers, Layers WHERE ThemeLayers.LayerID = Layers.LayerID AND Name = 'Kiosks'"), 1);
    theme->close();
}

} // namespace Orvane
