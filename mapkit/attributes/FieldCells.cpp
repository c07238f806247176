// SPDX-License-Identifier: MIT
#include "mapkit/attributes/FieldCells.h"

#include <QDateTime>

#include <ogrsf_frmts.h>

namespace Orvane {

namespace {

QVariant TextOf(OGRFeature& feature, int index)
{
    return QString::fromUtf8(feature.GetFieldAsString(index));
}

QVariant MomentOf(OGRFeature& feature, int index, CellKind kind)
{
    int year = 0, month = 0, day = 0, hour = 0, minute = 0, zone = 0;
    float second = 0;
    feature.GetFieldAsDateTime(index, &year, &month, &day, &hour, &minute, &second, &zone);
    const QDate date(year, month, day);
    const QTime time(hour, minute, int(second), int(1000 * (second - float(int(second)))));
    if (kind == CellKind::Date && date.isValid())
        return date;
    if (kind == CellKind::Time && time.isValid())
        return time;
    if (kind == CellKind::DateTime && date.isValid() && time.isValid())
        return QDateTime(date, time, Qt::UTC);
    return TextOf(feature, index);
}

} // namespace

CellKind CellKindOf(const OGRFieldDefn& field)
{
    switch (field.GetType()) {
    case OFTInteger:
    case OFTInteger64:
        return field.GetSubType() == OFSTBoolean ? CellKind::Flag : CellKind::Whole;
    case OFTReal:
        return CellKind::Real;
    case OFTDate:
        return CellKind::Date;
    case OFTTime:
        return CellKind::Time;
    case OFTDateTime:
        return CellKind::DateTime;
    default:
        return CellKind::Text;
    }
}

QVariant CellOf(OGRFeature& feature, int index, CellKind kind)
{
    if (!feature.IsFieldSetAndNotNull(index))
        return {};
    switch (kind) {
    case CellKind::Whole:
        return qlonglong(feature.GetFieldAsInteger64(index));
    case CellKind::Real:
        return feature.GetFieldAsDouble(index);
    case CellKind::Flag:
        return feature.GetFieldAsInteger(index) != 0;
    case CellKind::Date:
    case CellKind::Time:
    case CellKind::DateTime:
        return MomentOf(feature, index, kind);
    case CellKind::Text:
        break;
    }
    return TextOf(feature, index);
}

} // namespace Orvane
