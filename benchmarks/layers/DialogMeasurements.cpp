// SPDX-License-Identifier: MIT
#include "benchmarks/layers/BenchmarkMap.h"
#include "benchmarks/layers/DialogDesk.h"
#include "benchmarks/layers/LayerJobs.h"
#include "benchmarks/layers/MapCopy.h"
#include "ovctrls/CheckBoxPlus.h"

#include <QAbstractButton>
#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QScrollBar>
#include <QTreeView>

#include <algorithm>

namespace Orvane::Benchmarks {

namespace {

constexpr int pages = 50;
constexpr int rowsOfAPage = 25;
const QString groupsTab = QStringLiteral("GROUPS");
const QString layersTab = QStringLiteral("LAYERS");

/// An open dialog on a copy of the map in which one pseudo group is an ordinary group, and so is listed.
class GroupDesk
{
public:
    GroupDesk(const QString& path, qint32 groupID)
        : m_map(path), m_desk(m_map.Path(), Listing(m_map, groupID))
    {
        auto& tree = m_desk.Find<QTreeView>("tvLayers1");
        tree.setAutoScroll(false);
        m_group = tree.model()->index(tree.model()->rowCount() - 1, 0);
        m_layer = tree.model()->index(0, 0, m_group);
    }

    /// Selects one of its layers first, since selecting the current node again does nothing.
    void Select()
    {
        auto& tree = m_desk.Find<QTreeView>("tvLayers1");
        tree.setCurrentIndex(m_layer);
        tree.setCurrentIndex(m_group);
        Desk::Paint();
    }

    void Apply(bool visible)
    {
        m_desk.Find<CheckBoxPlus>("chkVisible").setValue(qint16(visible));
        m_desk.Find<QAbstractButton>("cmdApply").click();
        Desk::Paint();
    }

private:
    static const QString& Listing(const MapCopy& map, qint32 groupID)
    {
        SqliteLayerDatabase::Open(map.Path())
            ->Execute(QStringLiteral("UPDATE LayerGroups SET Pseudo = 0 WHERE ID = ?1"), {groupID});
        return groupsTab;
    }

    MapCopy m_map;
    OpenDesk m_desk;
    QModelIndex m_group;
    QModelIndex m_layer;
};

Work Opening(const QString& path, const QString& tab)
{
    return [desk = std::make_shared<Desk>(path, tab)] {
        desk->Open();
        desk->Close();
    };
}

Work FlatList(const QString& path, const JobSize&)
{
    return Opening(path, layersTab);
}

Work GroupedTree(const QString& path, const JobSize&)
{
    return Opening(path, groupsTab);
}

Work Select(const QString& path, const JobSize& size)
{
    return [desk = std::make_shared<GroupDesk>(path, GroupOf(size.members))] { desk->Select(); };
}

Work Apply(const QString& path, const JobSize& size)
{
    auto desk = std::make_shared<GroupDesk>(path, GroupOf(size.members));
    desk->Select();
    return [desk, visible = true]() mutable {
        visible = !visible;
        desk->Apply(visible);
    };
}

Work Scroll(const QString& path, const JobSize&)
{
    return [desk = std::make_shared<OpenDesk>(path, layersTab)] {
        auto& tree = desk->Find<QTreeView>("tvLayers2");
        QScrollBar& bar = *tree.verticalScrollBar();
        for (int page = 0; page < pages; ++page) {
            bar.setValue(int(qint64(bar.maximum()) * page / (pages - 1)));
            tree.viewport()->repaint();
        }
    };
}

// Paints the same number of text lines without a list.
Work BareScroll(const QString&, const JobSize&)
{
    return [image = QImage(400, 600, QImage::Format_ARGB32_Premultiplied)]() mutable {
        for (int page = 0; page < pages; ++page) {
            image.fill(Qt::white);
            QPainter painter(&image);
            for (int row = 0; row < rowsOfAPage; ++row)
                painter.drawText(
                    20, 20 * (row + 1), QStringLiteral("Water mains 12345 of sheet %1").arg(page));
        }
    };
}

/// Types a text again and again, one key each time.
class Typist
{
public:
    /// The text after the next key.
    QString Next()
    {
        m_length = m_length % m_text.size() + 1;
        return m_text.left(m_length);
    }

private:
    QString m_text = QStringLiteral("water 12");
    qsizetype m_length = 0;
};

Work FindIn(const QString& path, const QString& tab, const char* field)
{
    return [desk = std::make_shared<OpenDesk>(path, tab), field, typist = Typist()]() mutable {
        desk->Find<QLineEdit>(field).setText(typist.Next());
        Desk::Paint();
    };
}

Work FindInFlatList(const QString& path, const JobSize&)
{
    return FindIn(path, layersTab, "txtFind2");
}

Work FindInGroupedTree(const QString& path, const JobSize&)
{
    return FindIn(path, groupsTab, "txtFind1");
}

// Looks into as many names, and shows nothing.
Work BareFind(const QString&, const JobSize& size)
{
    QStringList names;
    names.reserve(size.layers);
    for (int layer = 0; layer < size.layers; ++layer)
        names.append(QStringLiteral("Water mains %1 of sheet %2").arg(layer).arg(layer % pages));
    return [names, typist = Typist()]() mutable {
        const QString text = typist.Next();
        volatile qsizetype found = std::count_if(names.begin(), names.end(), [&](const QString& name) {
            return name.contains(text, Qt::CaseInsensitive);
        });
        Q_UNUSED(found)
    };
}

const Registration Registrations[] = {
    {Job::OpenFlatList, "dialog", FlatList},       {Job::OpenGroupedTree, "dialog", GroupedTree},
    {Job::SelectGroup, "dialog", Select},          {Job::ApplyToGroup, "dialog", Apply},
    {Job::ScrollFlatList, BareLevel, BareScroll},  {Job::ScrollFlatList, "dialog", Scroll},
    {Job::FindInFlatList, BareLevel, BareFind},    {Job::FindInFlatList, "dialog", FindInFlatList},
    {Job::FindInGroupedTree, BareLevel, BareFind}, {Job::FindInGroupedTree, "dialog", FindInGroupedTree},
};

} // namespace

} // namespace Orvane::Benchmarks
