// SPDX-License-Identifier: MIT
// The tests for hosts, on a QGIS project.
#include "hosttests/HostTests.h"

#include "hosttests/StoreContents.h"
#include "qgis/layers/KeptValues.h"
#include "qgis/plugin/ProjectSession.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <qgsproject.h>
#include <qgsvectorlayer.h>

namespace Orvane::Testing {

namespace {

/// A project with a layer for each row, and a session whose store has exactly the rows.
class QgisHost : public HostTests::IHostUnderTest
{
public:
    explicit QgisHost(const HostTests::HostContents& contents)
    {
        for (const HostTests::ContentsLayer& layer : contents.layers)
            AddLayer(ToInt32(layer.Get("LayerID")), ToTextOrNone(layer.Get("Name")));
        m_session = std::make_unique<ProjectSession>(m_project);
        m_session->Client().SetCommands(
            {&MakeLayer, [this](const QList<QgsMapLayer*>& layers) { m_project.removeMapLayers(layers); }});
        m_session->Store().Execute("DELETE FROM Layers");
        HostTests::FillStore(m_session->Store(), contents);
    }

    IStyleEditorClient& Client() override { return m_session->Client(); }

private:
    static QgsMapLayer* MakeLayer() { return new QgsVectorLayer("Polygon", "New", "memory"); }

    // A project has no layers with the other numbers: such rows are in the store alone.
    void AddLayer(qint32 layerID, const QString& name)
    {
        if (layerID < 1)
            return;
        auto* layer = new QgsVectorLayer("Polygon?crs=EPSG:4326", name, "memory");
        layer->setCustomProperty(KeptValues::PropertyName("id"), layerID);
        layer->setCustomProperty(KeptValues::PropertyName("idOf"), layer->id());
        m_project.addMapLayer(layer);
    }

    QgsProject m_project;
    std::unique_ptr<ProjectSession> m_session;
};

ORVANE_HOST_TESTS(QgisHost)

[[maybe_unused]] const bool WithDialog = [] {
    HostTests::RunWithDialog("QgisHost", HostTests::HostMaker<QgisHost>(), ORVANE_COMPONENT);
    return true;
}();

} // namespace

} // namespace Orvane::Testing
