// SPDX-License-Identifier: MIT
#include "mapkit/tables/RowGeometry.h"

#include <cmath>
#include <ogrsf_frmts.h>

namespace Orvane {

namespace {

int IndexOf(const OGRFeatureDefn& table, const QString& column)
{
    return column.isEmpty() ? -1 : table.GetFieldIndex(column.toUtf8().constData());
}

double NumberIn(OGRFeature& row, int index)
{
    if (row.GetFieldDefnRef(index)->GetType() == OFTReal && row.IsFieldSetAndNotNull(index))
        return row.GetFieldAsDouble(index);
    return NumberOf(QString::fromUtf8(row.GetFieldAsString(index))).value_or(std::nan(""));
}

} // namespace

RowGeometry::RowGeometry(const OGRFeatureDefn& table, const CoordinateColumns& columns)
    : m_isTable(!columns.IsEmpty()), m_x(IndexOf(table, columns.x)), m_y(IndexOf(table, columns.y)),
      m_wkt(IndexOf(table, columns.wkt))
{
    const bool hasAll = columns.wkt.isEmpty() ? m_x >= 0 && m_y >= 0 : m_wkt >= 0;
    m_isLacking = m_isTable && !hasAll;
}

RowGeometry::~RowGeometry() = default;

const OGRGeometry* RowGeometry::Of(OGRFeature& feature)
{
    if (!m_isTable)
        return feature.GetGeometryRef();
    if (m_isLacking)
        return nullptr;
    m_made = m_wkt >= 0 ? TextOf(feature) : PointOf(feature);
    return m_made.get();
}

std::unique_ptr<OGRGeometry> RowGeometry::PointOf(OGRFeature& row) const
{
    const double x = NumberIn(row, m_x);
    const double y = NumberIn(row, m_y);
    if (!std::isfinite(x) || !std::isfinite(y))
        return nullptr;
    return std::make_unique<OGRPoint>(x, y);
}

std::unique_ptr<OGRGeometry> RowGeometry::TextOf(OGRFeature& row) const
{
    OGRGeometry* geometry = nullptr;
    QByteArray text = row.GetFieldAsString(m_wkt);
    if (text.startsWith("SRID="))
        text.remove(0, text.indexOf(';') + 1);
    OGRGeometryFactory::createFromWkt(text.constData(), nullptr, &geometry);
    return std::unique_ptr<OGRGeometry>(geometry);
}

TableRows FirstRows(OGRLayer& table, int most)
{
    TableRows found;
    const OGRFeatureDefn& definition = *table.GetLayerDefn();
    for (int i = 0; i < definition.GetFieldCount(); ++i)
        found.columns << QString::fromUtf8(definition.GetFieldDefn(i)->GetNameRef());
    table.ResetReading();
    while (int(found.rows.size()) < most) {
        const OGRFeatureUniquePtr row(table.GetNextFeature());
        if (!row)
            break;
        QStringList& texts = found.rows.emplace_back();
        for (int i = 0; i < definition.GetFieldCount(); ++i)
            texts << QString::fromUtf8(row->GetFieldAsString(i));
    }
    table.ResetReading();
    return found;
}

} // namespace Orvane
