// SPDX-License-Identifier: MIT
#include "hostkit/LayerList.h"

#include "hostkit/lists/LayerGroups.h"
#include "hostkit/undo/LayerStepsFixture.h"

namespace Orvane::Testing {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A program with a list of its own over the map of the fixture.
class LayerListTest : public Steps
{
protected:
    LayerListTest()
    {
        QObject::connect(&m_list, &LayerList::Changed, [this](const QSet<qint32>& layerIDs) {
            for (const qint32 layerID : layerIDs)
                m_toldLayers << layerID;
            m_layers = m_list.Layers();
        });
        QObject::connect(&m_list, &LayerList::GroupsChanged, [this] { m_groups = m_list.Groups(); });
        m_layers = m_list.Layers();
        m_groups = m_list.Groups();
        Steps::Told();
    }

    QList<qint32> LayersTold() { return std::exchange(m_toldLayers, {}); }

    LayerList m_list{Database(), m_client};
    std::vector<ListedLayer> m_layers;
    std::vector<ListedGroup> m_groups;
    QList<qint32> m_toldLayers;
};

TEST_F(LayerListTest, WhatTheUserAppliesArrivesInTheProgramsList)
{
    ApplyTo(2, "Color", 0x00FF00);
    EXPECT_THAT(LayersTold(), ElementsAre(2));
    EXPECT_EQ(m_layers[1].lineColour, 0x00FF00);
    Host().RenameLayer(1, QStringLiteral("Streets"));
    EXPECT_THAT(LayersTold(), ElementsAre(1));
    EXPECT_EQ(m_layers[0].name, QStringLiteral("Streets"));
}

TEST_F(LayerListTest, LayersThatTheUserCreatesAndDeletesArriveToo)
{
    const qint32 created = Host().CreateLayer();
    EXPECT_THAT(LayersTold(), ElementsAre(created));
    EXPECT_EQ(m_layers.back().id, created);
    Host().DeleteLayer(created);
    EXPECT_THAT(LayersTold(), ElementsAre(created));
    EXPECT_EQ(m_list.Layer(created), std::nullopt);
    EXPECT_EQ(m_layers.size(), 3U);
}

TEST_F(LayerListTest, UndoRedoAndSchemesArriveToo)
{
    Host().CreateScheme(Night);
    ApplyTo(1, "Color", 77);
    History().Undo();
    EXPECT_EQ(m_layers[0].lineColour, 0);
    History().Redo();
    EXPECT_EQ(m_layers[0].lineColour, 77);
    Host().LoadScheme(Night);
    EXPECT_EQ(m_layers[0].lineColour, 0);
}

TEST_F(LayerListTest, TheProgramIsNotToldWhatItChangesItself)
{
    m_layers[0].lineColour = 5;
    EXPECT_TRUE(m_list.Update(m_layers));
    EXPECT_FALSE(m_list.Update(m_layers, m_groups));
    EXPECT_THAT(LayersTold(), IsEmpty());
    EXPECT_THAT(Get(1, "Color"), IsNumber(5));
}

TEST_F(LayerListTest, AnUpdateIsKnownToNamesAndSchemes)
{
    Host().GetSchemeNames();
    EXPECT_EQ(m_client.UnsavedSchemeChanges(), 0);
    EXPECT_EQ(Host().LayerDisplayName(1), QStringLiteral("Roads"));
    m_layers[0].name = QStringLiteral("Streets");
    m_layers[1].visible = false;
    m_list.Update(m_layers);
    EXPECT_EQ(Host().LayerDisplayName(1), QStringLiteral("Streets"));
    EXPECT_EQ(m_client.UnsavedSchemeChanges(), 1);
}

TEST_F(LayerListTest, AnUpdateInAStepCanBeUndone)
{
    const std::vector<ListedLayer> before = m_layers;
    const std::vector<ListedGroup> groupsBefore = m_groups;
    m_layers.pop_back();
    m_layers.push_back({.id = 40, .name = QStringLiteral("Lakes")});
    m_groups.push_back({.id = 9, .name = QStringLiteral("Water"), .layers = {40}});
    m_client.RecordStep([this] {
        m_list.Update(m_layers, m_groups);
        return QStringLiteral("Import");
    });
    const std::vector<ListedLayer> after = m_layers;
    const std::vector<ListedGroup> groupsAfter = m_groups;
    History().Undo();
    EXPECT_EQ(m_layers, before);
    EXPECT_EQ(m_groups, groupsBefore);
    History().Redo();
    EXPECT_EQ(m_layers, after);
    EXPECT_EQ(m_groups, groupsAfter);
}

TEST_F(LayerListTest, EarlierStepsCanStillBeUndoneAfterAnUpdate)
{
    ApplyTo(1, "Color", 77);
    m_layers[1].lineColour = 5;
    m_list.Update(m_layers);
    History().Undo();
    EXPECT_EQ(m_layers[0].lineColour, 0);
    EXPECT_EQ(m_layers[1].lineColour, 5);
}

TEST_F(LayerListTest, GroupsThatAreRenamedOrChangedByUndoArrive)
{
    Host().RenameGroup(5, QStringLiteral("Ways"));
    EXPECT_EQ(m_groups[0].name, QStringLiteral("Ways"));
    m_client.RecordStep([this] {
        LayerGroups::SetLayers(Database(), 5, {2});
        return QStringLiteral("Move");
    });
    History().Undo();
    EXPECT_THAT(m_groups[0].layers, ElementsAre(1, 2));
    History().Redo();
    EXPECT_THAT(m_groups[0].layers, ElementsAre(2));
}

TEST_F(LayerListTest, AnExpandedNodeIsNoChangeOfGroups)
{
    QSignalSpy told(&m_list, &LayerList::GroupsChanged);
    m_client.RecordStep([this] {
        Database().Execute(QStringLiteral("UPDATE LayerGroups SET Expanded = TRUE"));
        return QStringLiteral("Expand");
    });
    History().Undo();
    EXPECT_EQ(told.count(), 0);
}

TEST_F(LayerListTest, EditorsKeepNotesAsLongAsTheListLives)
{
    const QString key = QStringLiteral("Editor.Key");
    ASSERT_TRUE(Notes().KeepsNotes());
    Edit(1, "OverrideMode", qint16(2));
    Notes().SetNote(key, QStringLiteral("normal=1"));
    Host().RedrawMap();
    EXPECT_THAT(LayersTold(), ElementsAre(1));
    EXPECT_EQ(m_list.Notes().value(key), QStringLiteral("normal=1"));
    History().Undo();
    EXPECT_THAT(LayersTold(), ElementsAre(1));
    EXPECT_TRUE(m_list.Notes().isEmpty());
}

TEST_F(LayerListTest, AProgramGivesNotesBackThatItHasSaved)
{
    const QMap<QString, QString> saved{{QStringLiteral("Editor.Key"), QStringLiteral("normal=1")}};
    m_list.SetNotes(saved);
    EXPECT_EQ(Notes().Note(QStringLiteral("Editor.Key")), QStringLiteral("normal=1"));
    EXPECT_FALSE(History().CanUndo());
    EXPECT_THAT(LayersTold(), IsEmpty());
    m_list.SetNotes({});
    EXPECT_TRUE(m_list.Notes().isEmpty());
}

} // namespace
} // namespace Orvane::Testing
