// SPDX-License-Identifier: MIT
// The flat list of layers while a find shows some of them.
#include "component/dialog/trees/LayerTreeModel.h"

#include <QAbstractItemModelTester>

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace Orvane {

namespace {

NodeReference Node(qint32 layerID)
{
    return {.isGroup = false, .groupID = 0, .layerID = layerID};
}

/// A model checked by Qt's model tester, whose messages are warnings and so fail the test. Layers are named
/// by a letter for their place and by "x" if they are found.
class LayerTreeModelFindTest : public testing::Test
{
protected:
    void Fill(const QStringList& names)
    {
        std::vector<LayerEntry> entries;
        entries.reserve(std::size_t(names.size()));
        for (const QString& name : names)
            entries.push_back({qint32(entries.size()) + 1, 1, name});
        model.SetLayers(std::move(entries));
    }

    QStringList Shown() const
    {
        QStringList names;
        for (int row = 0; row < model.rowCount(); ++row)
            names.append(model.index(row, 0).data().toString());
        return names;
    }

    void Rename(qint32 layerID, const QString& name)
    {
        model.UpdateLayer({layerID, 1, name});
        EXPECT_TRUE(model.PlaceLayer(layerID, name));
    }

    LayerTreeModel model;
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Warning};
};

} // namespace

TEST_F(LayerTreeModelFindTest, ARenamedLayerMovesUpAndDownAmongThoseShown)
{
    Fill({"ax", "b", "cx", "d", "ex"});
    model.Find(FindWords("x"));
    Rename(1, "dx");
    EXPECT_EQ(Shown(), QStringList({"cx", "dx", "ex"}));
    Rename(5, "bx");
    EXPECT_EQ(Shown(), QStringList({"bx", "cx", "dx"}));
    EXPECT_EQ(model.IndexOf(Node(5)).row(), 0);
    EXPECT_EQ(model.IndexOf(Node(1)).row(), 2);
}

TEST_F(LayerTreeModelFindTest, ALayerThatIsNotShownMovesWithoutARow)
{
    Fill({"ax", "b", "cx", "d", "ex"});
    model.Find(FindWords("x"));
    Rename(2, "f");
    Rename(4, "a");
    EXPECT_EQ(Shown(), QStringList({"ax", "cx", "ex"}));
    EXPECT_FALSE(model.IndexOf(Node(2)).isValid());
    model.Find(FindWords(QString()));
    EXPECT_EQ(Shown(), QStringList({"a", "ax", "cx", "ex", "f"}));
}

TEST_F(LayerTreeModelFindTest, APersistentIndexFollowsItsLayer)
{
    Fill({"ax", "b", "cx", "d", "ex"});
    model.Find(FindWords("x"));
    const QPersistentModelIndex moved = model.IndexOf(Node(1));
    const QPersistentModelIndex other = model.IndexOf(Node(3));
    Rename(1, "gx");
    EXPECT_EQ(moved.data().toString(), "gx");
    EXPECT_EQ(other.data().toString(), "cx");
}

TEST_F(LayerTreeModelFindTest, TheFirstFoundIsTheFirstShown)
{
    Fill({"ax", "b", "cx", "d", "ex"});
    model.Find(FindWords("x"));
    Rename(1, "gx");
    ASSERT_TRUE(model.Found().first);
    EXPECT_EQ(model.Found().first->layerID, 3);
    Rename(5, "bx");
    EXPECT_EQ(model.Found().first->layerID, 5);
}

TEST_F(LayerTreeModelFindTest, AnyRenamesLeaveRowsAndNumbersRight)
{
    std::mt19937 random(5);
    Fill({"ax", "b", "cx", "d", "ex", "f", "gx", "h"});
    model.Find(FindWords("x"));
    for (int round = 0; round < 300; ++round) {
        const qint32 layerID = qint32(random() % 8) + 1;
        const bool isShown = model.IndexOf(Node(layerID)).isValid();
        const QString name = QString(QChar(ushort('a' + random() % 20))) + QString::number(round)
            + (isShown ? QStringLiteral("x") : QString());
        Rename(layerID, name);
        const QStringList shown = Shown();
        EXPECT_TRUE(std::is_sorted(shown.begin(), shown.end())) << qPrintable(shown.join(' '));
        EXPECT_EQ(shown.size(), 4);
        EXPECT_EQ(model.IndexOf(Node(layerID)).isValid(), isShown);
        model.Find(FindWords("x"));
        EXPECT_EQ(Shown(), shown);
    }
}

} // namespace Orvane
