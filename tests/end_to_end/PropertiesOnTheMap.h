// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/DataFolder.h"
#include "shell/MainWindow.h"

#include <QColor>
#include <QImage>
#include <QString>

#include <gtest/gtest.h>
#include <memory>
#include <vector>

class QComboBox;

namespace Orvane {
class MapDocument;
}

namespace Orvane::Testing {

/// A map of two green areas, "West" and "East", edged in blue, with a yellow layer below them, a red line and
/// a magenta point; beside it the layer control, in which a user changes one property at a time.
class PropertiesOnTheMap : public testing::Test
{
protected:
    static constexpr qint32 Transparent = qint32(0xff000000u);
    static constexpr qint32 Red = 0x0000ff; // BGR, as the pickers count
    static constexpr qint32 Green = 0x00ff00;
    static constexpr qint32 Blue = 0xff0000;
    static constexpr qint32 Yellow = 0x00ffff;
    static constexpr qint32 Magenta = 0xff00ff;
    static constexpr qint32 Cyan = 0xffff00;
    static constexpr qint32 Black = 0;

    void SetUp() override;
    void TearDown() override;

    /// Selects the layer in the flat list.
    void Select(const QString& layer);
    /// Clicks a control: a check box, a button, a button of the toolbar.
    void Click(const char* name);
    /// Goes to the item with this number in a closed list, with the arrow keys: a colour, a fill style, the
    /// line style or 20 times the thickness.
    void Pick(const char* list, qint32 number);
    void PickStyle(const QString& name);
    /// Chooses "Custom Line Style..." by its first letter, types the millimetres and presses OK.
    void EnterThickness(const QString& millimetres);
    /// Opens the slider behind the button, moves it with the keys, and presses OK.
    void Slide(const char* button, const std::vector<Qt::Key>& keys);
    void Apply() { Click("cmdApply"); }

    /// The finished picture of the map.
    QImage Map();
    /// Pixels of the map in which at least half is of that full colour; colour: BGR.
    int Pixels(qint32 colour);
    /// The number of pixels of that full colour in a vertical run around a place; colour: BGR.
    int ThicknessAt(QPointF map, qint32 colour);
    /// Shows the map at that scale.
    void SetScale(double denominator);
    void ShowAll();
    /// Waits for the attributes that a renderer style reads in the background.
    void WaitForAttributes(const QString& layer);

    std::unique_ptr<MainWindow> m_window;

private:
    void
    AddLayer(MapDocument& document, const QString& name, const QByteArray& features, const QString& columns);
    QWidget& Control(const char* name);
    template <typename IsWanted> void WalkTo(QComboBox& list, const IsWanted& isWanted);

    DataFolder m_folder;
};

} // namespace Orvane::Testing
