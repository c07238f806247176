// SPDX-License-Identifier: MIT
#include "qgis/project/ProjectSchemes.h"

#include "hostkit/common/HostErrors.h"
#include "hostkit/schemes/SchemeColumns.h"
#include "hostkit/schemes/SchemeTables.h"
#include "qgis/project/ProjectScope.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/Transaction.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>
#include <qgsproject.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace Orvane {

namespace {

constexpr int SchemesVersion = 2; // a program that knows only version 1 would drop what came later
const QString Entry = QStringLiteral("LayerSchemes");
const QString UnreadEntry = QStringLiteral("LayerSchemesUnread");

QJsonArray ColumnNames()
{
    QJsonArray names;
    for (const LayerColumn& column : SchemeColumns::All)
        names.append(QLatin1String(column.name));
    return names;
}

QJsonArray SavedValues(const IRecordset& row)
{
    QJsonArray values;
    for (const LayerColumn& column : SchemeColumns::All) {
        const auto number = NumberIn(row.Field(column.name));
        values.append(number ? QJsonValue(*number) : QJsonValue());
    }
    return values;
}

QJsonObject SavedLayers(ILayerStore& store, qint32 schemeID)
{
    QJsonObject layers;
    const auto row = store.OpenQuery(
        QStringLiteral("SELECT * FROM LayerSchemeValues WHERE SchemeID = ?1 ORDER BY LayerID"), {schemeID});
    for (; !row->AtEOF(); row->MoveNext())
        layers.insert(QString::number(ToInt32(row->Field("LayerID"))), SavedValues(*row));
    return layers;
}

QJsonObject SavedScheme(ILayerStore& store, const SchemeDetails& details)
{
    QJsonObject scheme{{"name", details.name}, {"layers", SavedLayers(store, details.id)}};
    if (details.holds != WholeScheme)
        scheme.insert("holds", JsonOf(details.holds));
    if (details.saved.isValid())
        scheme.insert("saved", TextOfTime(details.saved));
    if (details.place)
        scheme.insert("place", *details.place);
    return scheme;
}

QByteArray SchemesText(ILayerStore& store, SchemeTables& tables)
{
    QJsonArray schemes;
    QJsonObject all{
        {"version", SchemesVersion}, {"current", tables.CurrentName()}, {"columns", ColumnNames()}};
    for (const SchemeDetails& details : tables.All()) {
        schemes.append(SavedScheme(store, details));
        if (details.isAtOpening)
            all.insert("atOpening", details.name);
    }
    all.insert("schemes", schemes);
    return QJsonDocument(all).toJson(QJsonDocument::Compact);
}

// Sets the columns that a saved layer has values for.
struct SavedColumns {
    QString update;
    std::vector<int> places; // of the values, in the order of the parameters from ?3

    explicit SavedColumns(const QJsonArray& names)
    {
        QStringList assignments;
        places.reserve(SchemeColumns::Count);
        for (int place = 0; place < names.size(); ++place) {
            const QString name = names.at(place).toString();
            const size_t column = FindLayerColumn(name.toStdString());
            if (column == LayerColumns.size() || LayerColumns.at(column).inSchemes == InSchemes::No)
                continue; // of a later program
            places.push_back(place);
            assignments << QStringLiteral("%1 = ?%2").arg(name).arg(places.size() + 2);
        }
        update = QStringLiteral("UPDATE LayerSchemeValues SET %1 WHERE LayerID = ?1 AND SchemeID = ?2")
                     .arg(assignments.join(QLatin1String(", ")));
    }
};

// A column that the text has no values for gets those of the layer.
bool InsertPresentValues(ILayerStore& store, qint32 layerID, qint32 schemeID, SchemeParts holds)
{
    return store.Execute(
               QStringLiteral("INSERT INTO LayerSchemeValues (LayerID, SchemeID, %1)"
                              " SELECT LayerID, ?2, %1 FROM Layers WHERE LayerID = ?1")
                   .arg(SchemeColumns::List(holds)),
               {layerID, schemeID})
        > 0;
}

void StoreSavedLayer(
    ILayerStore& store, qint32 layerID, const SchemeDetails& scheme, const SavedColumns& columns,
    const QJsonArray& values)
{
    if (!InsertPresentValues(store, layerID, scheme.id, scheme.holds) || columns.places.empty())
        return;
    std::vector<Value> parameters{layerID, scheme.id};
    parameters.reserve(columns.places.size() + 2);
    for (const int place : columns.places) {
        const QJsonValue value = values.at(place);
        parameters.push_back(value.isDouble() ? Value(value.toDouble()) : Value::Null());
    }
    store.Execute(columns.update, parameters);
}

SchemeDetails DetailsIn(const QJsonObject& scheme)
{
    SchemeDetails details;
    details.name = scheme.value("name").toString();
    details.holds = PartsOfJson(scheme.value("holds")).value_or(WholeScheme);
    details.saved = TimeOfText(scheme.value("saved").toString());
    if (scheme.value("place").isDouble())
        details.place = scheme.value("place").toInt();
    return details;
}

SchemeDetails
StoreScheme(ILayerStore& store, SchemeTables& tables, const QJsonObject& scheme, const SavedColumns& columns)
{
    SchemeDetails details = DetailsIn(scheme);
    details.id = tables.Insert(details.name);
    tables.SetHead(details.id, details);
    const QJsonObject layers = scheme.value("layers").toObject();
    for (auto layer = layers.begin(); layer != layers.end(); ++layer)
        StoreSavedLayer(store, layer.key().toInt(), details, columns, layer.value().toArray());
    return details;
}

// Those that have a place, in the order of the places.
QStringList OrderOf(std::vector<SchemeDetails> schemes)
{
    std::stable_sort(schemes.begin(), schemes.end(), [](const SchemeDetails& a, const SchemeDetails& b) {
        return a.place < b.place;
    });
    QStringList names;
    for (const SchemeDetails& scheme : schemes) {
        if (scheme.place)
            names << scheme.name;
    }
    return names;
}

[[noreturn]] void RaiseSchemes(HostError number, const QString& description)
{
    throw RunTimeError(int(number), description, QStringLiteral("ProjectSchemes"));
}

} // namespace

void ProjectSchemes::Read()
{
    Clear();
    m_unread = m_project.readEntry(ProjectScope, Entry);
    if (!m_unread.isEmpty())
        Store(m_unread.toUtf8());
    m_unread.clear();
}

bool ProjectSchemes::AreKept() const
{
    return !m_project.readEntry(ProjectScope, Entry).isEmpty();
}

void ProjectSchemes::Write()
{
    SchemeTables tables(m_store);
    if (!tables.HaveSchemes())
        return;
    KeepUnread();
    const QString text = QString::fromUtf8(SchemesText(m_store, tables));
    if (text != m_project.readEntry(ProjectScope, Entry))
        m_project.writeEntry(ProjectScope, Entry, text);
}

void ProjectSchemes::KeepUnread()
{
    if (m_unread.isEmpty())
        return;
    QString free = UnreadEntry;
    for (int number = 2; !m_project.readEntry(ProjectScope, free).isEmpty(); ++number)
        free = UnreadEntry + QString::number(number);
    m_project.writeEntry(ProjectScope, free, std::exchange(m_unread, {}));
}

void ProjectSchemes::Clear()
{
    SchemeTables tables(m_store);
    if (!tables.HaveSchemes())
        return;
    Transaction transaction(m_store);
    for (const QString& name : tables.Names())
        tables.Remove(tables.IDOf(name));
    transaction.Commit();
}

void ProjectSchemes::Store(const QByteArray& text)
{
    const QJsonObject all = QJsonDocument::fromJson(text).object();
    const QJsonArray schemes = all.value("schemes").toArray();
    if (all.value("version").toInt() > SchemesVersion)
        RaiseSchemes(
            HostError::SchemeTextTooNew,
            tr("The layer schemes of this project were written by a newer program and cannot be read."));
    if (schemes.isEmpty())
        RaiseSchemes(
            HostError::SchemeTextDamaged,
            tr("The layer schemes of this project are damaged and cannot be read."));
    SchemeTables tables(m_store);
    tables.Create();
    Transaction transaction(m_store);
    const SavedColumns columns(all.value("columns").toArray());
    std::vector<SchemeDetails> stored;
    stored.reserve(std::size_t(schemes.size()));
    for (const QJsonValue& scheme : schemes)
        stored.push_back(StoreScheme(m_store, tables, scheme.toObject(), columns));
    tables.SetOrder(OrderOf(std::move(stored)));
    tables.MakeCurrent(tables.IDOf(all.value("current").toString()));
    tables.SetAtOpening(tables.IDOf(all.value("atOpening").toString()));
    transaction.Commit();
}

} // namespace Orvane
