// SPDX-License-Identifier: MIT
// Nothing is lost, and the user is told, when something goes wrong.
#include "qgis/plugin/DialogFixture.h"
#include "qgis/plugin/LateEnd.h"
#include "support/Errors.h"

#include <QDialog>
#include <QFile>
#include <QTimer>
#include <QtTest>
#include <qgsproject.h>

namespace Orvane::Testing {

namespace {

class FailingWell : public DialogFixture
{
protected:
    void SwitchOff()
    {
        auto parts = std::make_unique<LateEnd::Parts>();
        parts->session = std::move(session);
        parts->component = std::move(component);
        LateEnd::Of(std::move(parts));
    }

    // A colour in the store, as the component applies it.
    void Apply(const QList<QgsMapLayer*>& layers, std::string_view column, const Value& value)
    {
        IStyleEditorClient& host = session->Client();
        const auto rows = host.LayersTable();
        rows->Index("LayerIDIDX");
        for (QgsMapLayer* layer : layers) {
            const qint32 layerID = session->Mirror().IDOf(*layer);
            rows->Seek("=", layerID);
            host.BeginLayerEdit(*rows);
            rows->SetField(column, value);
            host.LayerChanged(layerID);
            rows->Update();
        }
        host.RedrawMap();
    }

    QgsVectorLayer* AddLostLayer()
    {
        auto* lost = new QgsVectorLayer(folder.filePath("lost.shp"), "Lost", "ogr");
        project.addMapLayer(lost);
        Settle();
        return lost;
    }

    Value Stored(QgsMapLayer& layer, std::string_view column)
    {
        return ValueOf(*StoredRows::Read(session->Store(), session->Mirror().IDOf(layer)), column);
    }
};

TEST_F(FailingWell, OfALostLayerOnlyTheTickIsKnown)
{
    QgsVectorLayer* lost = AddLostLayer();
    ASSERT_FALSE(lost->isValid());
    EXPECT_TRUE(ToBoolean(Stored(*lost, "Visible")));
    for (const char* column : {"Selectable", "locked", "SnapRequired", "MinVisScale", "OverrideMode"})
        EXPECT_TRUE(Stored(*lost, column).IsNull()) << column;
}

TEST_F(FailingWell, ALostLayerInAGroupHindersNobody)
{
    QgsVectorLayer* lost = AddLostLayer();
    Apply({roads, lost}, "Selectable", false);
    EXPECT_FALSE(ToBoolean(Stored(*roads, "Selectable")));
    EXPECT_TRUE(Stored(*lost, "Selectable").IsNull());
    Apply({roads, lost}, "Visible", false);
    EXPECT_FALSE(IsTicked(*lost));
    EXPECT_EQ(told, QStringList());
}

TEST_F(FailingWell, WhatALostLayerCannotTakeIsToldWithItsName)
{
    QgsVectorLayer* lost = AddLostLayer();
    Apply({lost}, "OverrideMode", qint32(1));
    ASSERT_EQ(told.size(), 1);
    EXPECT_TRUE(told[0].contains("\"Lost\""));
    EXPECT_TRUE(told[0].contains("display mode"));
    EXPECT_TRUE(Stored(*lost, "OverrideMode").IsNull());
}

TEST_F(FailingWell, ALayerThatIsBeingEditedIsNotLockedAndThatIsTold)
{
    roads->startEditing();
    Settle();
    Apply({roads, lakes}, "locked", true);
    EXPECT_TRUE(lakes->readOnly());
    EXPECT_FALSE(ToBoolean(Stored(*roads, "locked")));
    ASSERT_EQ(told.size(), 1);
    EXPECT_TRUE(told[0].contains("\"Roads\": locked")) << told[0].toStdString();
    roads->rollBack();
}

TEST_F(FailingWell, AnErrorNamesTheLayerAndLeavesTheGroupAsItWas)
{
    const QString text = DescriptionOf([&] {
        Apply({roads, lakes}, "FillForeColor", QStringLiteral("blue"));
    });
    EXPECT_TRUE(text.contains("\"Roads\"") || text.contains("\"Lakes\"")) << text.toStdString();
    EXPECT_TRUE(Stored(*roads, "FillForeColor").IsNumber());
}

TEST_F(FailingWell, AProjectThatCannotBeWrittenKeepsWhatWasApplied)
{
    const QString file = folder.filePath("map.qgs");
    ASSERT_TRUE(project.write(file));
    ASSERT_TRUE(QFile::setPermissions(file, QFile::ReadOwner));
    session->Client().StandardClient::InvalidateLayerNames();
    EditVisible(*roads);
    user.Click("cmdApply");
    EXPECT_FALSE(IsTicked(*roads));
    EXPECT_TRUE(project.isDirty());
    if (!project.write(file)) { // the superuser may write everything
        EXPECT_TRUE(project.isDirty());
    }
    ASSERT_TRUE(project.write(folder.filePath("other.qgs")));
    QgsProject opened;
    ASSERT_TRUE(opened.read(folder.filePath("other.qgs")));
    EXPECT_FALSE(opened.layerTreeRoot()->findLayer(roads->id())->itemVisibilityChecked());
    EXPECT_EQ(told, QStringList());
}

TEST_F(FailingWell, EditsOfARemovedLayerAreToldWithItsName)
{
    EditVisible(*roads);
    project.removeMapLayer(roads);
    Settle();
    EXPECT_FALSE(Form().HasPendingEdits());
    ASSERT_EQ(told.size(), 1);
    EXPECT_TRUE(told[0].contains("\"Roads\"")) << told[0].toStdString();
    EXPECT_EQ(ListedLayers(), QStringList{"Lakes"});
}

TEST_F(FailingWell, ALayerThatIsRemovedDuringAnApplyCostsNothingElse)
{
    QObject::connect(roads, &QgsMapLayer::repaintRequested, roads, [this] { project.removeMapLayer(lakes); });
    Apply({roads, lakes}, "FillForeColor", qint32(0xFF0000));
    Settle();
    EXPECT_EQ(ToInt32(Stored(*roads, "FillForeColor")), 0xFF0000);
    EXPECT_EQ(ListedLayers(), QStringList{"Roads"});
}

TEST_F(FailingWell, AChangeThatCouldNotBeReadIsReadWithTheNext)
{
    const qint32 next = session->Mirror().IDOf(*lakes) + session->Mirror().IDOf(*roads);
    session->Store().Execute("INSERT INTO Layers (LayerID) VALUES (?1)", {next});
    QgsVectorLayer* woods = AddLayer("Woods");
    Settle();
    ASSERT_FALSE(told.isEmpty());
    EXPECT_TRUE(told[0].contains("\"Woods\"")) << told[0].toStdString();
    session->Store().Execute("DELETE FROM Layers WHERE LayerID = ?1", {next});
    roads->setName("Streets");
    Settle();
    EXPECT_EQ(ToText(Stored(*woods, "Name")), "Woods");
}

TEST_F(FailingWell, AnOvertakenStepIsDroppedWithAMessage)
{
    Apply({roads}, "FillForeColor", qint32(0xFF0000));
    Paint(*roads, Qt::green);
    session->Undo(); // before the change was read
    EXPECT_EQ(told.size(), 1);
    EXPECT_FALSE(session->Client().History().CanUndo());
    EXPECT_EQ(ToInt32(Stored(*roads, "FillForeColor")), 0x00FF00);
}

TEST_F(FailingWell, UndoWithPendingEditsIsRefusedWithAMessage)
{
    Apply({lakes}, "FillForeColor", qint32(0xFF0000));
    EditVisible(*roads);
    session->Undo();
    EXPECT_EQ(told.size(), 1);
    EXPECT_TRUE(Form().HasPendingEdits());
    EXPECT_TRUE(session->Client().History().CanUndo());
}

// ---- switched off in the middle

TEST_F(FailingWell, SwitchedOffWithPendingEdits)
{
    EditVisible(*roads);
    SwitchOff();
    Settle();
    roads->setName("Streets");
    Settle();
    EXPECT_TRUE(IsTicked(*roads));
}

TEST_F(FailingWell, SwitchedOffDuringAnApply)
{
    QPointer<QObject> ended = session.get();
    QObject::connect(roads, &QgsMapLayer::repaintRequested, roads, [this] {
        if (session)
            SwitchOff();
    });
    Select(*roads);
    user.StepThrough("cmbColor1", Qt::Key_Down);
    QTest::mouseClick(user.Find("cmdApply").window()->findChild<QWidget*>("cmdApply"), Qt::LeftButton);
    EXPECT_FALSE(session);
    EXPECT_TRUE(QTest::qWaitFor([&] {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return !ended;
    }));
}

TEST_F(FailingWell, SwitchedOffUnderAQuestion)
{
    QPointer<QObject> ended = session.get();
    QTimer::singleShot(0, roads, [this] {
        SwitchOff();
        if (QWidget* prompt = QApplication::activeModalWidget())
            prompt->close();
    });
    const PromptAnswer answer = session->Client().PromptText({});
    EXPECT_FALSE(answer.accepted);
    EXPECT_TRUE(QTest::qWaitFor([&] {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return !ended;
    }));
}

} // namespace

} // namespace Orvane::Testing
