// SPDX-License-Identifier: MIT
#include "benchmarks/BenchmarkMap.h"
#include "benchmarks/Measurement.h"
#include "component/dialog/window/frmLayerStyles.h"
#include "component/entry/StyleEditorLib.h"
#include "hostkit/StandardClient.h"
#include "hostkit/StandardShellServices.h"
#include "ovctrls/CheckBoxPlus.h"
#include "store/sqlite/SqliteLayerDatabase.h"

#include <OrvaneShellLib/ForwardingClient.h>

#include <QAbstractButton>
#include <QCoreApplication>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTreeView>

#include <algorithm>

namespace Orvane::Benchmarks {

namespace {

constexpr int pages = 50;
constexpr int rowsOfAPage = 25;
const QString editorID = QStringLiteral("Main");

/// Opens each editor in the same view state and stores none.
class FixedState : public ForwardingClient
{
public:
    FixedState(IStyleEditorClient& client, const QString& tab)
        : ForwardingClient(client), m_state(QStringLiteral("12000:9000:%1:EXPANDED").arg(tab))
    {
    }

private:
    QString IStyleEditorClient_ReadSetting(QWidget*, const QString&) override { return m_state; }
    void IStyleEditorClient_WriteSetting(QWidget*, const QString&, const QString&) override { }

    QString m_state;
};

/// The layer control on a map, as an application shows it.
class Desk
{
public:
    Desk(const QString& path, const QString& tab)
        : m_database(SqliteLayerDatabase::Open(path)), m_client(*m_database, m_services),
          m_state(m_client, tab),
          m_library([] { return std::make_unique<frmLayerStyles>(); }, QStringLiteral("none"))
    {
        Library().Initialise(&m_state);
    }

    void Open()
    {
        m_client.InvalidateLayerNames();
        Library().NewStyleEditor(editorID);
        Library().GetStyleEditor(editorID)->Visible(true);
        Paint();
    }

    void Close()
    {
        Form().UnloadWithoutApply();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    static void Paint() { QCoreApplication::processEvents(); }

    StyleEditorWindow& Form()
    {
        return dynamic_cast<StyleEditorWindow&>(*Library().GetStyleEditor(editorID));
    }

    template <typename Widget> Widget& Find(const char* name)
    {
        return *Form().findChild<Widget*>(QLatin1String(name));
    }

private:
    IStyleEditorLibrary& Library() { return m_library; }

    std::unique_ptr<SqliteLayerDatabase> m_database;
    StandardShellServices m_services;
    StandardClient m_client;
    FixedState m_state;
    StyleEditorLib m_library;
};

/// The same on a copy of the map in which one pseudo group is an ordinary group, and so is listed.
class GroupDesk
{
public:
    GroupDesk(const QString& path, qint32 groupID) : m_desk(CopyWith(path, groupID), QStringLiteral("GROUPS"))
    {
        m_desk.Open();
        auto& tree = m_desk.Find<QTreeView>("tvLayers1");
        tree.setAutoScroll(false);
        m_group = tree.model()->index(tree.model()->rowCount() - 1, 0);
        m_layer = tree.model()->index(0, 0, m_group);
    }

    ~GroupDesk() { m_desk.Close(); }

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
    QString CopyWith(const QString& path, qint32 groupID) const
    {
        QString copy = m_folder.filePath(QStringLiteral("map.ovl"));
        QFile::copy(path, copy);
        SqliteLayerDatabase::Open(copy)->Execute(
            QStringLiteral("UPDATE LayerGroups SET Pseudo = 0 WHERE ID = ?1"), {groupID});
        return copy;
    }

    QTemporaryDir m_folder;
    Desk m_desk;
    QModelIndex m_group;
    QModelIndex m_layer;
};

Run Opening(const QString& path, const QString& tab)
{
    return [desk = std::make_shared<Desk>(path, tab)] {
        desk->Open();
        desk->Close();
    };
}

Run FlatList(const QString& path, const JobSize&)
{
    return Opening(path, QStringLiteral("LAYERS"));
}

Run GroupedTree(const QString& path, const JobSize&)
{
    return Opening(path, QStringLiteral("GROUPS"));
}

Run Select(const QString& path, const JobSize& size)
{
    return [desk = std::make_shared<GroupDesk>(path, GroupOf(size.members))] { desk->Select(); };
}

Run Apply(const QString& path, const JobSize& size)
{
    auto desk = std::make_shared<GroupDesk>(path, GroupOf(size.members));
    desk->Select();
    return [desk, visible = true]() mutable {
        visible = !visible;
        desk->Apply(visible);
    };
}

Run Scroll(const QString& path, const JobSize&)
{
    auto desk = std::make_shared<Desk>(path, QStringLiteral("LAYERS"));
    desk->Open();
    const std::shared_ptr<void> closing(nullptr, [desk](void*) { desk->Close(); });
    return [desk, closing] {
        auto& tree = desk->Find<QTreeView>("tvLayers2");
        QScrollBar& bar = *tree.verticalScrollBar();
        for (int page = 0; page < pages; ++page) {
            bar.setValue(int(qint64(bar.maximum()) * page / (pages - 1)));
            tree.viewport()->repaint();
        }
    };
}

// Paints the same number of text lines without a list.
Run BareScroll(const QString&, const JobSize&)
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

Run FindIn(const QString& path, const QString& tab, const char* field)
{
    auto desk = std::make_shared<Desk>(path, tab);
    desk->Open();
    const std::shared_ptr<void> closing(nullptr, [desk](void*) { desk->Close(); });
    return [desk, closing, field, typist = Typist()]() mutable {
        desk->Find<QLineEdit>(field).setText(typist.Next());
        Desk::Paint();
    };
}

Run FindInFlatList(const QString& path, const JobSize&)
{
    return FindIn(path, QStringLiteral("LAYERS"), "txtFind2");
}

Run FindInGroupedTree(const QString& path, const JobSize&)
{
    return FindIn(path, QStringLiteral("GROUPS"), "txtFind1");
}

// Looks into as many names, and shows nothing.
Run BareFind(const QString&, const JobSize& size)
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
    {Job::OpenFlatList, "dialog", FlatList},    {Job::OpenGroupedTree, "dialog", GroupedTree},
    {Job::SelectGroup, "dialog", Select},       {Job::ApplyToGroup, "dialog", Apply},
    {Job::ScrollFlatList, "bare", BareScroll},  {Job::ScrollFlatList, "dialog", Scroll},
    {Job::FindInFlatList, "bare", BareFind},    {Job::FindInFlatList, "dialog", FindInFlatList},
    {Job::FindInGroupedTree, "bare", BareFind}, {Job::FindInGroupedTree, "dialog", FindInGroupedTree},
};

} // namespace

} // namespace Orvane::Benchmarks
