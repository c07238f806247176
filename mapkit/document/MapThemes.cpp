// SPDX-License-Identifier: MIT
#include "mapkit/document/MapThemes.h"

#include "hostkit/common/NaturalOrder.h"
#include "store/ILayerStore.h"
#include "store/StoreTable.h"

#include <OrvaneShellLib/Transaction.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <algorithm>

namespace Orvane {

namespace {

constexpr auto VisibleLayers = "SELECT LayerID FROM Layers WHERE Visible IS TRUE AND Code > -2"
                               " AND COALESCE(OverrideMode, 0) <> 2 AND Pseudo IS NOT TRUE";

void SortForUser(std::vector<MapThemes::Theme>& themes)
{
    std::stable_sort(
        themes.begin(), themes.end(),
        [order = NaturalOrder()](const auto& one, const auto& other) { return order(one.name, other.name); });
}

} // namespace

std::vector<MapThemes::Theme> MapThemes::All() const
{
    std::vector<Theme> themes;
    if (!HasTables())
        return themes;
    const auto rows
        = m_database.OpenQuery(QStringLiteral("SELECT ThemeID, Name FROM Themes ORDER BY ThemeID"));
    for (; !rows->AtEOF(); rows->MoveNext()) {
        // An ID beyond 32 bits, which another program may have stored, must not hide the other themes.
        if (const std::optional<qint32> themeID = Int32In(rows->Field("ThemeID")))
            themes.push_back({*themeID, ToText(rows->Field("Name"))});
    }
    SortForUser(themes);
    return themes;
}

std::optional<MapThemes::Theme> MapThemes::Find(const QString& name) const
{
    for (const Theme& theme : All()) {
        if (theme.name == name)
            return theme;
    }
    return std::nullopt;
}

QString MapThemes::NameOf(qint32 themeID) const
{
    if (!HasTables())
        return {};
    const auto row
        = m_database.OpenQuery(QStringLiteral("SELECT Name FROM Themes WHERE ThemeID = ?1"), {themeID});
    return row->AtEOF() ? QString() : ToText(row->Field("Name"));
}

QSet<qint32> MapThemes::LayersOf(qint32 themeID) const
{
    QSet<qint32> layerIDs;
    if (!HasTables())
        return layerIDs;
    const auto rows = m_database.OpenQuery(
        QStringLiteral("SELECT LayerID FROM ThemeLayers WHERE ThemeID = ?1"), {themeID});
    for (; !rows->AtEOF(); rows->MoveNext()) {
        if (const std::optional<qint32> layerID = Int32In(rows->Field("LayerID")))
            layerIDs.insert(*layerID);
    }
    return layerIDs;
}

bool MapThemes::HasVisibleLayers() const
{
    return !m_database.OpenQuery(QLatin1String(VisibleLayers) + QLatin1String(" LIMIT 1"))->AtEOF();
}

qint32 MapThemes::StoreVisibleLayers(const QString& name)
{
    Transaction transaction(m_database);
    Prepare();
    m_database.Execute(
        QStringLiteral("INSERT INTO Themes (Name) VALUES (?1) ON CONFLICT DO NOTHING"), {name});
    const qint32 themeID = Find(name)->id;
    m_database.Execute(QStringLiteral("DELETE FROM ThemeLayers WHERE ThemeID = ?1"), {themeID});
    m_database.Execute(
        QStringLiteral("INSERT INTO ThemeLayers (ThemeID, LayerID) SELECT ?1, LayerID FROM (%1) AS Shown")
            .arg(QLatin1String(VisibleLayers)),
        {themeID});
    transaction.Commit();
    return themeID;
}

void MapThemes::AddLayer(qint32 themeID, qint32 layerID)
{
    m_database.Execute(
        QStringLiteral("INSERT INTO ThemeLayers (ThemeID, LayerID) VALUES (?1, ?2)"
                       " ON CONFLICT DO NOTHING"),
        {themeID, layerID});
}

void MapThemes::Rename(qint32 themeID, const QString& name)
{
    m_database.Execute(QStringLiteral("UPDATE Themes SET Name = ?2 WHERE ThemeID = ?1"), {themeID, name});
}

void MapThemes::Remove(qint32 themeID)
{
    m_database.Execute(QStringLiteral("DELETE FROM Themes WHERE ThemeID = ?1"), {themeID});
}

bool MapThemes::HasTables() const
{
    return m_database.HasTable(QStringLiteral("ThemeLayers"));
}

void MapThemes::Prepare()
{
    using Nulls = StoreColumn::Nulls;
    const QString themes = QStringLiteral("Themes");
    const QString themeID = QStringLiteral("ThemeID");
    const QString layerID = QStringLiteral("LayerID");
    const QString name = QStringLiteral("Name");
    m_database.PrepareTable(
        {themes, {{themeID, StoreType::Whole}, {name, StoreType::Text, Nulls::Refused}}, {themeID}, {name}});
    // The layer is the first column, so that the rows of a deleted layer are found quickly.
    m_database.PrepareTable(
        {QStringLiteral("ThemeLayers"),
         {{layerID, StoreType::Whole, Nulls::Refused, {}, QStringLiteral("Layers"), layerID},
          {themeID, StoreType::Whole, Nulls::Refused, {}, themes, themeID}},
         {layerID, themeID},
         {},
         {themeID}});
}

} // namespace Orvane
