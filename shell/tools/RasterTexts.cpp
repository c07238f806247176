// SPDX-License-Identifier: MIT
#include "shell/tools/RasterTexts.h"

#include "mapkit/attributes/TableCell.h"

#include <QCoreApplication>
#include <QLocale>

namespace Orvane {

namespace {

QString BandName(const RasterValue& value)
{
    const QString name = QCoreApplication::translate("RasterTexts", "Band %1").arg(value.band);
    return value.description.isEmpty() ? name : QStringLiteral("%1 (%2)").arg(name, value.description);
}

QString ValueText(const RasterValue& value)
{
    if (!value.number)
        return QCoreApplication::translate("RasterTexts", "no data");
    QString text = CellText(*value.number, QLocale());
    if (!value.unit.isEmpty())
        text += QLatin1Char(' ') + value.unit;
    return value.category.isEmpty() ? text : QStringLiteral("%1 (%2)").arg(text, value.category);
}

} // namespace

std::vector<FeatureAttribute> ValuesAsAttributes(const std::vector<RasterValue>& values)
{
    std::vector<FeatureAttribute> attributes;
    attributes.reserve(values.size());
    for (const RasterValue& value : values)
        attributes.push_back({BandName(value), ValueText(value), !value.number});
    return attributes;
}

} // namespace Orvane
