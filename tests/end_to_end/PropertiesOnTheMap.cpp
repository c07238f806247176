// SPDX-License-Identifier: MIT
#include "end_to_end/PropertiesOnTheMap.h"

#include "hostkit/common/SettingsStore.h"
#include "mapkit/canvas/MapCanvas.h"
#include "mapkit/document/MapDocument.h"
#include "store/sqlite/SqliteLayerDatabase.h"
#include "support/ShownEditor.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSettings>
#include <QSlider>
#include <QTest>
#include <QTimer>
#include <QTreeView>

namespace Orvane::Testing {

namespace {

constexpr int BlendedAway = 140; // of 255: half of a thin line's colour may be in the next pixel
constexpr int NumberRole = Qt::UserRole + 1; // of the pickers' items

QByteArray Feature(const QByteArray& properties, const QByteArray& type, const QByteArray& coordinates)
{
    return R"({"type":"Feature","properties":{)" + properties + R"(},"geometry":{"type":")" + type
        + R"(","coordinates":)" + coordinates + "}}";
}

QByteArray Square(int west, int south, int size)
{
    const auto at
        = [](int x, int y) { return "[" + QByteArray::number(x) + "," + QByteArray::number(y) + "]"; };
    return "[[" + at(west, south) + "," + at(west + size, south) + "," + at(west + size, south + size) + ","
        + at(west, south + size) + "," + at(west, south) + "]]";
}

bool IsNear(QRgb pixel, qint32 colour)
{
    return std::abs(qRed(pixel) - (colour & 0xff)) <= BlendedAway
        && std::abs(qGreen(pixel) - ((colour >> 8) & 0xff)) <= BlendedAway
        && std::abs(qBlue(pixel) - ((colour >> 16) & 0xff)) <= BlendedAway;
}

// Moves the drop-down slider that opens during its lifetime, and presses OK.
class SliderHand : public QObject
{
public:
    explicit SliderHand(const std::vector<Qt::Key>& keys) : m_keys(keys) { qApp->installEventFilter(this); }

    bool HasOpened() const { return m_opened; }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show && watched->objectName() == QLatin1String("frmDropSlider")) {
            m_opened = true;
            auto* popup = static_cast<QWidget*>(watched);
            QTimer::singleShot(0, popup, [this, popup] {
                for (const Qt::Key key : m_keys)
                    QTest::keyClick(popup->findChild<QSlider*>("sldValue"), key);
                QTest::mouseClick(popup->findChild<QWidget*>("cmdOK"), Qt::LeftButton);
            });
        }
        return false;
    }

private:
    const std::vector<Qt::Key> m_keys;
    bool m_opened = false;
};

} // namespace

void PropertiesOnTheMap::SetUp()
{
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder.Path("settings"));
    SettingsStore().Write("DrawStyleEditor::Main", "9000:9000:LAYERS:EXPANDED");
    QSettings().setValue("LayerControl/Docked", false); // the map needs its room
    auto document = MapDocument::Create(m_folder.Path("map.orvane"));
    document->SetSystem("EPSG:4326");
    AddLayer(
        *document, "areas",
        Feature(R"("name":"West","size":1)", "Polygon", Square(0, 0, 10)) + ","
            + Feature(R"("name":"East","size":9)", "Polygon", Square(20, 0, 10)),
        "Color = 16711680, FillForeColor = 65280, FillBackColor = -16777216, LineThickness = -3");
    AddLayer(
        *document, "cover", Feature("", "Polygon", Square(2, 2, 6)),
        "OutlineStyle = 15, FillForeColor = 65535, Priority = 200");
    AddLayer(
        *document, "lines", Feature("", "LineString", "[[0,14],[30,14]]"),
        "Color = 255, FillForeColor = 16776960");
    AddLayer(*document, "points", Feature("", "Point", "[15,5]"), "Color = 16711935, LineThickness = -8");
    const QString path = document->Path();
    document.reset();
    m_window = std::make_unique<MainWindow>();
    m_window->resize(600, 400);
    m_window->show();
    m_window->OpenMap(path);
    m_window->findChild<QAction*>("actLayerControl")->trigger();
    // Until then, the main window's shortcuts get some of the keys. A tool window counts as active too early.
    QWidget* form = Control("tvLayers2").window();
    ASSERT_TRUE(QTest::qWaitFor([form] { return QApplication::activeWindow() == form; }));
}

void PropertiesOnTheMap::TearDown()
{
    m_window.reset();
}

void PropertiesOnTheMap::AddLayer(
    MapDocument& document, const QString& name, const QByteArray& features, const QString& columns)
{
    NewLayer layer;
    layer.name = name;
    layer.ogrLayer = name;
    layer.path
        = m_folder.Write(name + ".geojson", R"({"type":"FeatureCollection","features":[)" + features + "]}");
    const qint32 layerID = document.AddLayer(layer);
    document.Database().Execute(
        QStringLiteral("UPDATE Layers SET %1 WHERE LayerID = ?1").arg(columns), {layerID});
}

QWidget& PropertiesOnTheMap::Control(const char* name)
{
    QWidget* form = ShownEditor();
    if (auto* control = form ? form->findChild<QWidget*>(QLatin1String(name)) : nullptr)
        return *control;
    throw std::runtime_error(name);
}

void PropertiesOnTheMap::Select(const QString& layer)
{
    auto& tree = static_cast<QTreeView&>(Control("tvLayers2"));
    const QModelIndexList found = tree.model()->match(tree.model()->index(0, 0), Qt::DisplayRole, layer);
    ASSERT_EQ(found.size(), 1) << qPrintable(layer);
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualRect(found[0]).center());
}

void PropertiesOnTheMap::Click(const char* name)
{
    QWidget& control = Control(name);
    auto* box = control.findChild<QCheckBox*>();
    QWidget& target = box ? *box : control;
    ASSERT_TRUE(target.isEnabled()) << name;
    QTest::mouseClick(&target, Qt::LeftButton, {}, QPoint(8, target.height() / 2));
}

template <typename IsWanted> void PropertiesOnTheMap::WalkTo(QComboBox& list, const IsWanted& isWanted)
{
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Home);
    for (int i = 0; i < list.count() && !isWanted(); ++i)
        QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_TRUE(isWanted()) << qPrintable(list.objectName()) << " stands at " << list.currentIndex() << " of "
                            << list.count() << (list.isEnabled() ? "" : ", disabled")
                            << (list.hasFocus() ? "" : ", without the focus");
}

void PropertiesOnTheMap::Pick(const char* name, qint32 number)
{
    auto& list = static_cast<QComboBox&>(Control(name));
    WalkTo(list, [&] { return list.currentData(NumberRole) == number; });
}

void PropertiesOnTheMap::EnterThickness(const QString& millimetres)
{
    bool entered = false;
    QTimer hand;
    QObject::connect(&hand, &QTimer::timeout, [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        if (!dialog || dialog->objectName() != "frmOtherLineStyle")
            return;
        hand.stop();
        auto* unit = dialog->findChild<QWidget*>("optMillimetres");
        QTest::mouseClick(unit, Qt::LeftButton, {}, QPoint(8, unit->height() / 2));
        auto* width = dialog->findChild<QLineEdit*>("bedThickness");
        width->selectAll();
        QTest::keyClicks(width, millimetres);
        entered = true;
        QTest::mouseClick(dialog->findChild<QWidget*>("cmdOK"), Qt::LeftButton);
    });
    hand.start(0);
    auto& list = static_cast<QComboBox&>(Control("cmbLineStyles"));
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_C); // "Custom Line Style..."
    EXPECT_TRUE(QTest::qWaitFor([&] { return entered; }));
}

void PropertiesOnTheMap::PickStyle(const QString& name)
{
    auto& list = static_cast<QComboBox&>(Control("cboStyle"));
    WalkTo(list, [&] { return list.currentText() == name; });
}

void PropertiesOnTheMap::Slide(const char* button, const std::vector<Qt::Key>& keys)
{
    const SliderHand hand(keys);
    QTest::mouseClick(&Control(button), Qt::LeftButton);
    EXPECT_TRUE(hand.HasOpened()) << button;
}

QImage PropertiesOnTheMap::Map()
{
    MapCanvas& canvas = m_window->Canvas();
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return !canvas.Picture().IsBusy() && canvas.Picture().ImageView() == canvas.View(); }));
    return canvas.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

int PropertiesOnTheMap::Pixels(qint32 colour)
{
    const QImage map = Map();
    int count = 0;
    for (int y = 0; y < map.height(); ++y) {
        for (int x = 0; x < map.width(); ++x)
            count += IsNear(map.pixel(x, y), colour);
    }
    return count;
}

int PropertiesOnTheMap::ThicknessAt(QPointF place, qint32 colour)
{
    const QImage map = Map();
    const QPoint middle = m_window->Canvas().View().ToPixel(place).toPoint();
    int top = middle.y();
    while (top > 0 && IsNear(map.pixel(middle.x(), top - 1), colour))
        --top;
    int bottom = top;
    while (bottom < map.height() && IsNear(map.pixel(middle.x(), bottom), colour))
        ++bottom;
    return bottom - top;
}

void PropertiesOnTheMap::SetScale(double denominator)
{
    MapCanvas& canvas = m_window->Canvas();
    const MapView& view = canvas.View();
    const double unitsPerPixel = view.UnitsPerPixel() * denominator / canvas.ScaleDenominator();
    canvas.SetView(MapView({5, 5}, unitsPerPixel, view.Size()));
}

void PropertiesOnTheMap::ShowAll()
{
    m_window->Canvas().ZoomToAll();
}

void PropertiesOnTheMap::WaitForAttributes(const QString& name)
{
    EXPECT_TRUE(QTest::qWaitFor([&] {
        const std::vector<MapLayer>& layers = m_window->Canvas().Layers();
        return std::any_of(layers.begin(), layers.end(), [&](const MapLayer& layer) {
            return layer.name == name && (layer.labels || layer.classes);
        });
    }));
}

} // namespace Orvane::Testing
