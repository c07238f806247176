// SPDX-License-Identifier: MIT
#include "qgis/layers/LayerIDs.h"

#include "qgis/layers/LayerFixture.h"

#include <QTemporaryDir>
#include <qgsannotationlayer.h>

namespace Orvane {

namespace {

class LayerIDsOfQgis : public Testing::LayerFixture
{
protected:
    // A copy that the project lists before the layer itself.
    QgsMapLayer& AddCopy(const QgsMapLayer& layer)
    {
        std::unique_ptr<QgsMapLayer> copy(layer.clone());
        while (copy->id() > layer.id()) // QGIS makes up its IDs
            copy.reset(layer.clone());
        return *project.addMapLayer(copy.release());
    }
};

} // namespace

TEST_F(LayerIDsOfQgis, EachLayerHasItsNumber)
{
    QgsVectorLayer& parcels = Add("Polygon");
    QgsVectorLayer& roads = Add("LineString", "Roads");
    LayerIDs ids(project);
    const qint32 first = ids.Of(parcels);
    EXPECT_GE(first, 1);
    EXPECT_NE(ids.Of(roads), first);
    EXPECT_EQ(ids.Of(parcels), first);
    EXPECT_EQ(ids.Layer(first), &parcels);
    EXPECT_EQ(ids.Layer(99), nullptr);
}

TEST_F(LayerIDsOfQgis, ACopyOfALayerGetsANumberOfItsOwn)
{
    QgsVectorLayer& parcels = Add("Polygon");
    LayerIDs ids(project);
    const qint32 first = ids.Of(parcels);
    QgsMapLayer& copy = AddCopy(parcels);
    EXPECT_NE(ids.Of(copy), first);
    EXPECT_EQ(ids.Of(parcels), first);
    EXPECT_EQ(LayerIDs(project).Of(copy), ids.Of(copy));
}

TEST_F(LayerIDsOfQgis, ACopyThatIsAskedFirstDoesNotTakeTheNumber)
{
    QgsVectorLayer& parcels = Add("Polygon");
    const qint32 first = LayerIDs(project).Of(parcels);
    QgsMapLayer& copy = AddCopy(parcels);
    LayerIDs ids(project);
    EXPECT_NE(ids.Of(copy), first);
    EXPECT_EQ(ids.Of(parcels), first);
}

TEST_F(LayerIDsOfQgis, AStyleFromAnotherLayerDoesNotBringItsNumber)
{
    QgsVectorLayer& parcels = Add("Polygon");
    QgsVectorLayer& roads = Add("LineString", "Roads");
    LayerIDs ids(project);
    const qint32 first = ids.Of(parcels);
    const qint32 second = ids.Of(roads);
    roads.setCustomProperties(parcels.customProperties());
    EXPECT_EQ(ids.Of(roads), second);
    EXPECT_EQ(ids.Layer(first), &parcels);
}

TEST_F(LayerIDsOfQgis, TheNumberOfALayerThatLeftIsNotGivenAgain)
{
    QgsVectorLayer& parcels = Add("Polygon");
    LayerIDs ids(project);
    const qint32 first = ids.Of(parcels);
    project.removeMapLayer(&parcels);
    EXPECT_EQ(ids.Layer(first), nullptr);
    EXPECT_NE(ids.Of(Add("Polygon", "New")), first);
}

TEST_F(LayerIDsOfQgis, NumbersAreSavedWithTheProject)
{
    Add("Polygon");
    QgsVectorLayer& roads = Add("LineString", "Roads");
    const qint32 id = LayerIDs(project).Of(roads);
    const QString text = roads.id();
    const QTemporaryDir folder;
    ASSERT_TRUE(project.write(folder.filePath(QStringLiteral("town.qgz"))));
    QgsProject reopened;
    ASSERT_TRUE(reopened.read(folder.filePath(QStringLiteral("town.qgz"))));
    const LayerIDs ids(reopened);
    ASSERT_NE(ids.Layer(id), nullptr);
    EXPECT_EQ(ids.Layer(id)->id(), text);
}

TEST_F(LayerIDsOfQgis, AnnotationsKeepTheirNumberInASavedProject)
{
    const QTemporaryDir folder;
    Add("Polygon", "Parcels");
    auto* layer
        = new QgsAnnotationLayer("Notes", QgsAnnotationLayer::LayerOptions(project.transformContext()));
    project.addMapLayer(layer);
    Add("Polygon", "Lakes");
    LayerIDs ids(project);
    const qint32 number = ids.Of(*layer);
    ASSERT_TRUE(project.write(folder.filePath("map.qgs")));
    QgsProject opened;
    ASSERT_TRUE(opened.read(folder.filePath("map.qgs")));
    LayerIDs others(opened);
    EXPECT_EQ(others.Of(*opened.mapLayersByName("Notes").first()), number);
}

} // namespace Orvane
