// SPDX-License-Identifier: MIT
#include "qgis/project/MapThemes.h"

#include "hostkit/schemes/LayerSchemes.h"
#include "hostkit/schemes/SchemeColumns.h"
#include "qgis/layers/OverrideMode.h"
#include "qgis/project/ProjectMirror.h"
#include "qgis/project/StoredRows.h"
#include "qgis/project/StyleLooks.h"
#include "qgis/project/ThemeStep.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/Transaction.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <qgslayertree.h>
#include <qgsmaplayer.h>
#include <qgsmaplayerstylemanager.h>
#include <qgsproject.h>

#include <algorithm>
#include <utility>

namespace Orvane {

namespace {

using Themes = QgsMapThemeCollection;

// As QGIS names the groups of a theme.
QString PathOf(QgsLayerTreeNode& node)
{
    QStringList names;
    for (QgsLayerTreeNode* one = &node; one->parent(); one = one->parent())
        names.prepend(one->name());
    return names.join(QLatin1Char('/'));
}

void AddGroups(const QgsLayerTreeGroup& parent, QSet<QString>& ticked, QSet<QString>& unfolded)
{
    for (QgsLayerTreeNode* node : parent.children()) {
        if (!QgsLayerTree::isGroup(node))
            continue;
        if (node->itemVisibilityChecked())
            ticked.insert(PathOf(*node));
        if (node->isExpanded())
            unfolded.insert(PathOf(*node));
        AddGroups(static_cast<const QgsLayerTreeGroup&>(*node), ticked, unfolded);
    }
}

// A theme without layers, and with the groups as they are.
Themes::MapThemeRecord EmptyTheme(const QgsProject& project)
{
    Themes::MapThemeRecord theme;
    QSet<QString> ticked;
    QSet<QString> unfolded;
    AddGroups(*project.layerTreeRoot(), ticked, unfolded);
    theme.setHasCheckedStateInfo(true);
    theme.setHasExpandedStateInfo(true);
    theme.setCheckedGroupNodes(ticked);
    theme.setExpandedGroupNodes(unfolded);
    return theme;
}

bool IsTrue(const LayerValues& row, const char* column)
{
    const Value& value = ValueOf(row, column);
    return !value.IsNull() && ToBoolean(value);
}

qint32 ModeOf(const LayerValues& row)
{
    const Value& mode = ValueOf(row, "OverrideMode");
    return mode.IsNull() ? NormalMode : ToInt32(mode);
}

void InsertValues(ILayerStore& store, qint32 schemeID, const LayerValues& row)
{
    std::vector<Value> values{ValueOf(row, "LayerID"), schemeID};
    values.reserve(SchemeColumns::Count + 2);
    for (const LayerColumn& column : SchemeColumns::All)
        values.push_back(ValueOf(row, column.name));
    store.Execute(
        QStringLiteral("INSERT INTO LayerSchemeValues (LayerID, SchemeID, %1) VALUES (?1, ?2, %2)")
            .arg(SchemeColumns::List(), SchemeColumns::Parameters(3)),
        values);
}

// The layer's row, with what the scheme has saved of it. scheme: as the tables have it.
LayerValues SavedRow(ILayerStore& store, const SchemeDetails& scheme, LayerValues row)
{
    const auto saved = store.OpenQuery(
        QStringLiteral("SELECT * FROM LayerSchemeValues WHERE SchemeID = ?1 AND LayerID = ?2"),
        {scheme.id, ValueOf(row, "LayerID")});
    for (const LayerColumn& column : SchemeColumns::All) {
        if (!saved->AtEOF() && scheme.holds.testFlag(PartOf(column)))
            SetValue(row, column.name, saved->Field(column.name));
    }
    return row;
}

} // namespace

MapThemes::MapThemes(QgsProject& project, ILayerStore& store, ProjectMirror& mirror)
    : m_project(project), m_store(store), m_mirror(mirror)
{
}

QStringList MapThemes::Names() const
{
    return m_project.mapThemeCollection()->mapThemes();
}

bool MapThemes::Has(const QString& theme) const
{
    return m_project.mapThemeCollection()->hasMapTheme(theme);
}

void MapThemes::Import(const QStringList& themes)
{
    LayerSchemes(m_store).Current(); // makes the tables
    Transaction transaction(m_store);
    for (const QString& theme : themes)
        ImportOne(theme);
    transaction.Commit();
}

void MapThemes::ImportOne(const QString& theme)
{
    SchemeTables tables(m_store);
    const Themes::MapThemeRecord record = m_project.mapThemeCollection()->mapThemeState(theme);
    qint32 schemeID = tables.IDOf(theme);
    if (schemeID == SchemeTables::NoScheme)
        schemeID = tables.Insert(theme);
    else
        tables.DropValues(schemeID);
    tables.SetHead(schemeID, {theme, WholeScheme, QDateTime::currentDateTimeUtc()});
    const auto layerRecords = record.validLayerRecords();
    for (QgsMapLayer* layer : m_project.mapLayers())
        InsertValues(m_store, schemeID, ThemeValues(*layer, layerRecords.value(layer)));
}

LayerValues MapThemes::ThemeValues(QgsMapLayer& layer, const Themes::MapThemeLayerRecord& record)
{
    LayerValues row = StoredRows::Read(m_store, m_mirror.IDOf(layer)).value_or(UnknownLayerValues());
    SetValue(row, "LayerID", m_mirror.IDOf(layer));
    const bool isVisible = record.layer() && record.isVisible;
    SetValue(row, "Visible", isVisible);
    if (isVisible && ModeOf(row) == HiddenMode)
        SetValue(row, "OverrideMode", NormalMode);
    const QString style = record.currentStyle;
    if (!record.usingCurrentStyle || !layer.styleManager()->styles().contains(style))
        return row;
    row = StyleLooks::Read(layer, m_project, row, style);
    SetValue(row, "Style", m_mirror.Styles().NumberIn(layer, style));
    return row;
}

std::unique_ptr<IUndoStep> MapThemes::Export(const QString& scheme)
{
    const SchemeDetails saved = SchemeTables(m_store).DetailsOf(LayerSchemes(m_store).IDOf(scheme));
    auto step = std::make_unique<ThemeStep>(m_project, scheme);
    Themes::MapThemeRecord theme = EmptyTheme(m_project);
    for (QgsMapLayer* layer : m_project.mapLayers()) {
        if (const auto row = StoredRows::Read(m_store, m_mirror.IDOf(*layer)))
            theme.addLayerRecord(RecordOf(*layer, SavedRow(m_store, saved, *row), *row, *step));
    }
    step->SetTheme(theme);
    step->Redo();
    return step;
}

Themes::MapThemeLayerRecord MapThemes::RecordOf(
    QgsMapLayer& layer, const LayerValues& wanted, const LayerValues& present, ThemeStep& step)
{
    QgsLayerTreeLayer* node = m_project.layerTreeRoot()->findLayer(&layer);
    Themes::MapThemeLayerRecord record(&layer);
    record.isVisible
        = node && node->parent()->isVisible() && IsTrue(wanted, "Visible") && ModeOf(wanted) != HiddenMode;
    record.expandedLayerNode = node && node->isExpanded();
    record.usingCurrentStyle = true;
    record.currentStyle = StyleFor(layer, wanted, present, step);
    return record;
}

// The scheme's style, or another one that looks like that, or a new one.
QString MapThemes::StyleFor(
    QgsMapLayer& layer, const LayerValues& wanted, const LayerValues& present, ThemeStep& step)
{
    const Value& number = ValueOf(wanted, "Style");
    QString like = number.IsNull() ? QString() : m_mirror.Styles().NameIn(layer, ToInt32(number));
    if (like.isEmpty())
        like = layer.styleManager()->currentStyle();
    QStringList styles = layer.styleManager()->styles();
    styles.removeAll(like);
    styles.prepend(like);
    const auto found = std::find_if(styles.begin(), styles.end(), [&](const QString& style) {
        return StyleLooks::AreAlike(wanted, StyleLooks::Read(layer, m_project, present, style));
    });
    if (found != styles.end())
        return *found;
    return step.AddStyle(layer, StyleLooks::Make(layer, like, wanted));
}

} // namespace Orvane
