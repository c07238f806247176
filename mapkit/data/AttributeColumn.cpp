// SPDX-License-Identifier: MIT
#include "mapkit/data/AttributeColumn.h"

#include "mapkit/common/Progress.h"
#include "mapkit/data/SourceAttributes.h"
#include "mapkit/files/ReadingBound.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace Orvane {

namespace {

// The first field that passes the first test that any field passes; the best test comes first.
template <typename... Tests> QString FirstOf(const std::vector<SourceField>& fields, const Tests&... tests)
{
    QString name;
    const auto look = [&](const auto& test) {
        const auto found = std::find_if(fields.begin(), fields.end(), test);
        if (found != fields.end())
            name = found->name;
        return found != fields.end();
    };
    (look(tests) || ...);
    return name;
}

bool IsIdentifier(const QString& name)
{
    static const QRegularExpression pattern(
        QStringLiteral("(^|_)(id|fid|gid|uid|code|objectid)\\d*$"),
        QRegularExpression::CaseInsensitiveOption);
    return pattern.match(name).hasMatch();
}

bool IsName(const SourceField& field)
{
    return field.isText && field.name.compare(QLatin1String("name"), Qt::CaseInsensitive) == 0;
}

bool IsSomeName(const SourceField& field)
{
    return field.isText && field.name.contains(QLatin1String("name"), Qt::CaseInsensitive);
}

bool IsQuantity(const SourceField& field)
{
    return field.isNumber && !IsIdentifier(field.name);
}

QString AttributeToRead(const AttributeRequest& request, const std::vector<SourceField>& fields)
{
    if (request.attribute.isEmpty())
        return BestAttribute(fields, request.use);
    const bool known = std::any_of(fields.begin(), fields.end(), [&](const SourceField& field) {
        return field.name == request.attribute;
    });
    return known ? request.attribute : QString();
}

} // namespace

QString BestAttribute(const std::vector<SourceField>& fields, AttributeUse use)
{
    const auto isText = [](const SourceField& field) { return field.isText; };
    const auto isNumber = [](const SourceField& field) { return field.isNumber; };
    const auto isAny = [](const SourceField&) { return true; };
    return use == AttributeUse::Labels ? FirstOf(fields, IsName, IsSomeName, isText, isAny)
                                       : FirstOf(fields, IsQuantity, isNumber);
}

AttributeColumn ReadAttribute(const AttributeRequest& request, Progress& progress)
{
    const ReadingBound untilCancelled(progress.CancelledFlag());
    const SourceAttributes source(request.source);
    AttributeColumn column;
    column.attribute = AttributeToRead(request, source.Fields());
    if (column.attribute.isEmpty())
        return column;
    const auto values = source.ReadField(column.attribute, progress);
    const auto count = request.features->Features().size();
    for (size_t i = 0; i < count; ++i) {
        const auto found = values.find(request.features->FeatureId(i));
        const FieldValue value = found == values.end() ? FieldValue() : found->second;
        if (request.use == AttributeUse::Labels)
            column.texts.push_back(value.text);
        else
            column.numbers.push_back(value.number);
    }
    return column;
}

} // namespace Orvane
