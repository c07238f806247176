// SPDX-License-Identifier: MIT
#include "hostkit/schemes/SchemeDocument.h"

#include "hostkit/common/HostErrors.h"

#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QBuffer>
#include <QIODevice>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>
#include <limits>

namespace Orvane {

namespace {

constexpr auto Format = "orvane-scheme";

[[noreturn]] void RaiseDamage(HostError number, const QString& description)
{
    throw RunTimeError(int(number), description, QStringLiteral("SchemeDocument"));
}

[[noreturn]] void RaiseDamaged(const QString& description)
{
    RaiseDamage(HostError::SchemeTextDamaged, description);
}

QByteArray Compact(const QJsonValue& value)
{
    return QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact).chopped(1).mid(1);
}

QJsonValue ToJsonValue(const Value& value, const QString& layer, const LayerColumn& column)
{
    if (value.IsNull())
        return QJsonValue::Null;
    if (value.IsNumber() || value.IsBoolean())
        return ToDouble(value);
    RaiseDamage(
        HostError::SchemeValueUnknown,
        SchemeDocument::tr("The value \"%2\" of the layer \"%1\" is not a number.")
            .arg(layer, QLatin1String(column.name)));
}

QJsonObject ToJsonObject(const SchemeDocument::Layer& layer, SchemeParts holds)
{
    QJsonObject object;
    if (layer.identity.code)
        object.insert(QLatin1String("code"), *layer.identity.code);
    object.insert(QLatin1String("name"), layer.identity.name);
    for (std::size_t number = 0; number < SchemeColumns::Count; ++number) {
        const LayerColumn& column = SchemeColumns::All.at(number);
        const Value& value = layer.values.at(number);
        if (holds.testFlag(PartOf(column)) && !value.IsEmpty())
            object.insert(QLatin1String(column.name), ToJsonValue(value, layer.identity.name, column));
    }
    return object;
}

bool IsWholeInRange(double number)
{
    return number == std::floor(number) && number >= std::numeric_limits<qint32>::min()
        && number <= std::numeric_limits<qint32>::max();
}

// The value if the column can hold it, Empty if it is missing; nothing for any other value.
std::optional<Value> JsonColumnValue(const QJsonValue& json, const LayerColumn& column)
{
    if (json.isUndefined())
        return Value();
    if (json.isNull())
        return Value::Null();
    if (json.isBool())
        return Value(qint32(json.toBool() ? 1 : 0));
    const double number = json.toDouble(std::numeric_limits<double>::quiet_NaN());
    if (column.kind != ColumnKind::Real)
        return IsWholeInRange(number) ? std::optional(Value(qint32(number))) : std::nullopt;
    return std::isfinite(number) ? std::optional(Value(number)) : std::nullopt;
}

SchemeDocument::Layer ToLayer(const QJsonValue& json, int position, SchemeParts holds)
{
    const auto check = [position](bool isGood, const char* key) {
        if (!isGood)
            RaiseDamaged(SchemeDocument::tr("Layer %1 has no valid \"%2\".")
                             .arg(position + 1)
                             .arg(QLatin1String(key)));
    };
    const QJsonObject object = json.toObject();
    SchemeDocument::Layer layer;
    layer.identity.id = position;
    check(object.value(QLatin1String("name")).isString(), "name");
    layer.identity.name = object.value(QLatin1String("name")).toString();
    const QJsonValue code = object.value(QLatin1String("code"));
    check(code.isUndefined() || code.isNull() || code.isDouble(), "code");
    if (code.toDouble(-1) >= 0)
        layer.identity.code = code.toDouble();
    for (std::size_t number = 0; number < SchemeColumns::Count; ++number) {
        const LayerColumn& column = SchemeColumns::All.at(number);
        if (!holds.testFlag(PartOf(column)))
            continue;
        const std::optional<Value> value = JsonColumnValue(object.value(QLatin1String(column.name)), column);
        check(value.has_value(), column.name);
        layer.values.at(number) = *value;
    }
    return layer;
}

int CheckedVersion(const QJsonObject& scheme)
{
    if (scheme.value(QLatin1String("format")).toString() != QLatin1String(Format))
        RaiseDamaged(SchemeDocument::tr("It is not a layer scheme."));
    const double version = scheme.value(QLatin1String("version")).toDouble();
    if (version > SchemeDocument::PartialVersion)
        RaiseDamage(
            HostError::SchemeTextTooNew,
            SchemeDocument::tr("It was written by a newer version of this program."));
    if (version != SchemeDocument::Version && version != SchemeDocument::PartialVersion)
        RaiseDamaged(SchemeDocument::tr("It does not contain a valid version number."));
    return int(version);
}

SchemeHead CheckedHead(const QJsonObject& scheme)
{
    const int version = CheckedVersion(scheme);
    SchemeHead head;
    head.name = scheme.value(QLatin1String("name")).toString().trimmed();
    if (head.name.isEmpty())
        RaiseDamaged(SchemeDocument::tr("It does not contain a scheme name."));
    head.saved = TimeOfText(scheme.value(QLatin1String("saved")).toString());
    if (version == SchemeDocument::Version)
        return head;
    const std::optional<SchemeParts> holds = PartsOfJson(scheme.value(QLatin1String("holds")));
    if (!holds)
        RaiseDamaged(SchemeDocument::tr("It does not say which properties it holds."));
    head.holds = *holds;
    return head;
}

[[noreturn]] void RaiseNoJson(qint64 position)
{
    RaiseDamaged(SchemeDocument::tr("It is not valid JSON (error at byte %1).").arg(position));
}

// start: the text's position in the file.
QJsonObject Parsed(const QByteArray& text, qint64 start)
{
    QJsonParseError error;
    QJsonObject object = QJsonDocument::fromJson(text, &error).object();
    if (error.error != QJsonParseError::NoError)
        RaiseNoJson(start + error.offset);
    return object;
}

constexpr auto BeginOfLayers = "\"layers\": [";
constexpr auto EndOfLayers = "]}";

QByteArray NextLine(QIODevice& text)
{
    const QByteArray line = text.readLine(SchemeDocument::LongestLine);
    if (!line.endsWith('\n') && !text.atEnd())
        RaiseDamaged(SchemeDocument::tr("It contains a line that is too long."));
    return line.trimmed();
}

} // namespace

void SchemeDocument::Writer::Begin(const SchemeHead& scheme)
{
    m_holds = scheme.holds;
    const bool isWhole = m_holds == WholeScheme;
    const QString saved = TextOfTime(scheme.saved);
    QByteArray text = QByteArrayLiteral("{\"format\": \"") + Format + QByteArrayLiteral("\", \"version\": ")
        + QByteArray::number(isWhole ? Version : PartialVersion) + QByteArrayLiteral(", \"name\": ")
        + Compact(scheme.name);
    if (!saved.isEmpty())
        text += QByteArrayLiteral(", \"saved\": ") + Compact(saved);
    if (!isWhole)
        text += QByteArrayLiteral(", \"holds\": ") + Compact(JsonOf(m_holds));
    m_text.write(text + QByteArrayLiteral(", \"layers\": ["));
}

void SchemeDocument::Writer::Add(const Layer& layer)
{
    m_text.write(m_separator + Compact(ToJsonObject(layer, m_holds)));
    m_separator = ",\n";
}

void SchemeDocument::Writer::End()
{
    m_text.write(QByteArrayLiteral("\n]}\n"));
}

QByteArray SchemeDocument::ToJson() const
{
    QBuffer text;
    text.open(QIODevice::WriteOnly);
    Writer writer(text);
    writer.Begin(*this);
    for (const Layer& layer : layers)
        writer.Add(layer);
    writer.End();
    return text.data();
}

SchemeDocument SchemeDocument::FromJson(const QByteArray& text)
{
    const QJsonObject scheme = Parsed(text, 0);
    SchemeDocument document{CheckedHead(scheme), {}};
    if (!scheme.value(QLatin1String("layers")).isArray())
        RaiseDamaged(tr("It holds no layers."));
    for (const QJsonValue layer : scheme.value(QLatin1String("layers")).toArray())
        document.layers.push_back(ToLayer(layer, int(document.layers.size()), document.holds));
    return document;
}

bool SchemeDocument::Reader::Begin()
{
    const QByteArray first = m_text.readLine(LongestLine).trimmed();
    if (!first.endsWith(BeginOfLayers))
        return false;
    m_head = CheckedHead(Parsed(first + EndOfLayers, 0));
    return true;
}

bool SchemeDocument::Reader::Next(Layer& layer)
{
    const qint64 start = m_text.pos();
    QByteArray line = NextLine(m_text);
    if (line == EndOfLayers) {
        if (!m_text.readAll().trimmed().isEmpty())
            RaiseNoJson(m_text.size());
        return false;
    }
    if (line.isEmpty() && m_text.atEnd())
        RaiseNoJson(start);
    if (line.endsWith(','))
        line.chop(1);
    layer = ToLayer(Parsed(line, start), m_position++, m_head.holds);
    return true;
}

double SchemeDocument::Reader::Done() const
{
    return double(m_text.pos()) / double(m_text.size());
}

std::optional<SchemeDocument>
SchemeDocument::FromLines(QIODevice& text, const std::function<void(double done)>& told)
{
    Reader reader(text);
    if (!reader.Begin())
        return std::nullopt;
    SchemeDocument document{reader.Head(), {}};
    for (Layer layer; reader.Next(layer);) {
        document.layers.push_back(layer);
        if (told)
            told(reader.Done());
    }
    return document;
}

} // namespace Orvane
