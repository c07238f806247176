// SPDX-License-Identifier: MIT
#include "shell/dialogs/RenderingDialog.h"

#include "mapkit/DataFolder.h"
#include "mapkit/document/MapDocument.h"
#include "mapkit/looks/RendererStyles.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>

#include <gmock/gmock.h>

namespace Orvane {

using namespace Testing;

namespace {

constexpr auto Places = R"({"type":"FeatureCollection","features":[
{"type":"Feature","properties":{"kind":"town","name":"Oslo","pop":700,"height":20.5},
 "geometry":{"type":"Point","coordinates":[10,59]}}]})";

class RenderingDialogTest : public testing::Test
{
protected:
    void SetUp() override
    {
        AddLayer("Zebra", m_folder.Write("places.geojson", Places), RendererStyles::Labelled);
        AddLayer("Apple", m_folder.WriteSquare("square.geojson"), 0);
        AddLayer("Gone", m_folder.Path("gone.gpkg"), 0);
    }

    void AddLayer(const QString& name, const QString& path, qint32 style)
    {
        NewLayer layer;
        layer.name = name;
        layer.path = path;
        layer.ogrLayer = QFileInfo(path).completeBaseName();
        MapLayer drawn;
        drawn.layerID = m_document->AddLayer(layer);
        drawn.name = name;
        drawn.values.style = style;
        m_layers.push_back(drawn);
    }

    void Open()
    {
        m_dialog = std::make_unique<RenderingDialog>(*m_document, m_layers, nullptr);
        m_dialog->show();
    }

    template <typename Widget = QComboBox> Widget& Find(const char* name)
    {
        return *m_dialog->findChild<Widget*>(QLatin1String(name));
    }

    static QStringList Items(const QComboBox& list)
    {
        QStringList items;
        for (int i = 0; i < list.count(); ++i)
            items << list.itemText(i);
        return items;
    }

    // Moves down the closed list to the item that begins with this text.
    static void Pick(QComboBox& list, const QString& text)
    {
        QTest::keyClick(&list, Qt::Key_Home);
        for (int i = 1; i < list.count() && !list.currentText().startsWith(text); ++i)
            QTest::keyClick(&list, Qt::Key_Down);
        EXPECT_TRUE(list.currentText().startsWith(text)) << qPrintable(text);
    }

    DataFolder m_folder;
    std::unique_ptr<MapDocument> m_document = MapDocument::Untitled();
    std::vector<MapLayer> m_layers;
    std::unique_ptr<RenderingDialog> m_dialog;
};

} // namespace

TEST_F(RenderingDialogTest, BeginsWithALayerWhoseStyleUsesAttributes)
{
    Open();
    EXPECT_EQ(Find("cmbLayer").currentText(), "Zebra");
    EXPECT_EQ(Items(Find("cmbLayer")), QStringList({"Apple", "Gone", "Zebra"}));
    EXPECT_EQ(Find<QLabel>("lblStyle").text(), "Labelled");
}

TEST_F(RenderingDialogTest, SaysWhereTheStyleUsesNoAttributes)
{
    Open();
    Pick(Find("cmbLayer"), "Apple");
    EXPECT_EQ(
        Find<QLabel>("lblStyle").text(),
        "Standard. It shows neither labels nor classes: choose another in the layer control.");
}

TEST_F(RenderingDialogTest, OffersTheAttributesThatCanServe)
{
    Open();
    EXPECT_EQ(
        Items(Find("cmbLabelAttribute")), QStringList({"Automatic (name)", "kind", "name", "pop", "height"}));
    EXPECT_EQ(Items(Find("cmbClassAttribute")), QStringList({"Automatic (pop)", "pop", "height"}));
    EXPECT_TRUE(Find<QLabel>("lblProblem").isHidden());
}

TEST_F(RenderingDialogTest, TellsWhatWasChosen)
{
    Open();
    Pick(Find("cmbLabelAttribute"), "kind");
    Pick(Find("cmbClassAttribute"), "height");
    QTest::keyClick(&Find("cmbDivision"), Qt::Key_Down);
    QTest::keyClick(&Find<QSpinBox>("spnClassCount"), Qt::Key_Up);
    const auto changes = m_dialog->Changes();
    ASSERT_EQ(changes.size(), 1u);
    EXPECT_EQ(
        changes.at(m_layers[0].layerID), (LayerRendering{"kind", "height", ClassDivision::EqualSteps, 6}));
}

TEST_F(RenderingDialogTest, ARampIsChosenByItsNameAndCanBeReversed)
{
    Open();
    Pick(Find("cmbRamp"), "Greens");
    QTest::keyClick(&Find<QCheckBox>("chkReversed"), Qt::Key_Space);
    const LayerRendering changed = m_dialog->Changes().at(m_layers[0].layerID);
    EXPECT_EQ(changed.ramp, "greens");
    EXPECT_TRUE(changed.isRampReversed);
}

TEST_F(RenderingDialogTest, NothingChosenIsNoChange)
{
    Open();
    Pick(Find("cmbLayer"), "Apple");
    Pick(Find("cmbLayer"), "Zebra");
    Pick(Find("cmbLabelAttribute"), "kind");
    Pick(Find("cmbLabelAttribute"), "Auto");
    EXPECT_TRUE(m_dialog->Changes().empty());
}

TEST_F(RenderingDialogTest, WhatWasChosenStaysWhileAnotherLayerIsShown)
{
    Open();
    Pick(Find("cmbLabelAttribute"), "kind");
    Pick(Find("cmbLayer"), "Apple");
    EXPECT_EQ(Find("cmbLabelAttribute").currentData().toString(), "");
    Pick(Find("cmbLayer"), "Zebra");
    EXPECT_EQ(Find("cmbLabelAttribute").currentText(), "kind");
    EXPECT_EQ(m_dialog->Changes().size(), 1u);
}

TEST_F(RenderingDialogTest, AStoredAttributeThatTheSourceLostIsShown)
{
    m_document->Renderings().Set(m_layers[0].layerID, {"lost", {}, ClassDivision::EqualSteps, 3});
    Open();
    EXPECT_EQ(Find("cmbLabelAttribute").currentText(), "lost");
    EXPECT_EQ(Find("cmbDivision").currentIndex(), 1);
    EXPECT_EQ(Find<QSpinBox>("spnClassCount").value(), 3);
    EXPECT_TRUE(m_dialog->Changes().empty());
}

TEST_F(RenderingDialogTest, DataThatCannotBeReadAreNamedAndNothingCanBeChosen)
{
    Open();
    Pick(Find("cmbLayer"), "Gone");
    EXPECT_FALSE(Find<QLabel>("lblProblem").isHidden());
    EXPECT_FALSE(Find<QGroupBox>("framLabels").isEnabled());
    EXPECT_FALSE(Find<QGroupBox>("framClasses").isEnabled());
    EXPECT_TRUE(m_dialog->Changes().empty());
}

TEST_F(RenderingDialogTest, OkAcceptsAndEscapeRejects)
{
    Open();
    QTest::mouseClick(Find<QDialogButtonBox>("buttons").button(QDialogButtonBox::Ok), Qt::LeftButton);
    EXPECT_EQ(m_dialog->result(), QDialog::Accepted);
    Open();
    QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
    EXPECT_EQ(m_dialog->result(), QDialog::Rejected);
    EXPECT_FALSE(m_dialog->isVisible());
}

TEST_F(RenderingDialogTest, ShowsTheLayerThatItIsOpenedFor)
{
    Open();
    m_dialog->Choose(m_layers.at(1).layerID);
    EXPECT_EQ(Find("cmbLayer").currentText(), "Apple");
    m_dialog->Choose(4711);
    EXPECT_EQ(Find("cmbLayer").currentText(), "Apple");
}

} // namespace Orvane
