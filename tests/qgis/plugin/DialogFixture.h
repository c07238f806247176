// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/StyleEditorPlugin.h"
#include "qgis/LayerColours.h"
#include "qgis/plugin/SessionFixture.h"
#include "qgis/session/DialogUser.h"

#include <OrvaneShellLib/IStyleEditor.h>
#include <OrvaneShellLib/IStyleEditorForm.h>
#include <OrvaneShellLib/IStyleEditorLibrary.h>

#include <qgslayertree.h>

namespace Orvane::Testing {

/// The layer control on a project with "Roads" and "Lakes", and a group "Town" without them.
class DialogFixture : public testing::Test, protected LayerColours
{
protected:
    DialogFixture() : roads(AddLayer("Roads")), lakes(AddLayer("Lakes"))
    {
        project.layerTreeRoot()->addGroup("Town");
        session = std::make_unique<ProjectSession>(project);
        session->ReadSchemes();
        session->Client().SetSettingsFile(folder.filePath("settings.ini"));
        QObject::connect(
            session.get(), &ProjectSession::Failed, [this](const QString& text) { told << text; });
        component = std::make_unique<StyleEditorPlugin>(ORVANE_COMPONENT);
        component->Library().Initialise(&session->Client());
        component->Library().NewStyleEditor("Main")->Visible(true);
        user.ClickTab(2);
        Settle();
    }
    ~DialogFixture() override
    {
        component.reset();
        session.reset();
    }

    QgsVectorLayer* AddLayer(const QString& name, const QString& kind = QStringLiteral("Polygon"))
    {
        auto* layer = new QgsVectorLayer(
            kind + "?crs=EPSG:4326&field=people:integer", name, QStringLiteral("memory"));
        Paint(*layer, Qt::red);
        project.addMapLayer(layer);
        return layer;
    }

    static void Settle()
    {
        for (int round = 0; round < 3; ++round)
            QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QWidget* FormWidget() { return dynamic_cast<QWidget*>(Editor()); }
    IStyleEditorForm& Form() { return dynamic_cast<IStyleEditorForm&>(*Editor()); }

    /// The names in the list of layers.
    QStringList ListedLayers()
    {
        user.ClickTab(2);
        return user.Texts(2);
    }
    QStringList ListedGroups()
    {
        user.ClickTab(1);
        return user.Texts(1);
    }

    void Select(const QgsMapLayer& layer) { user.ClickNode(2, int(ListedLayers().indexOf(layer.name()))); }

    /// "Visible" is not ticked any more, but not applied.
    void EditVisible(const QgsMapLayer& layer)
    {
        Select(layer);
        user.Click("chkVisible");
        ASSERT_TRUE(Form().HasPendingEdits());
    }

    bool IsTicked(const QgsMapLayer& layer)
    {
        return project.layerTreeRoot()->findLayer(layer.id())->itemVisibilityChecked();
    }

    QTemporaryDir folder;
    QgsProject project;
    QgsVectorLayer* roads;
    QgsVectorLayer* lakes;
    std::unique_ptr<ProjectSession> session;
    std::unique_ptr<StyleEditorPlugin> component;
    DialogUser user{[this] { return FormWidget(); }};
    QStringList told;

private:
    IStyleEditor* Editor() { return component ? component->Library().GetStyleEditor("Main") : nullptr; }
};

} // namespace Orvane::Testing
