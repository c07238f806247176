// SPDX-License-Identifier: MIT
#include "component/dialog/pasting/CopiedSettings.h"

#include "component/dialog/pasting/Setting.h"
#include "component/model/QuickModeNames.h"
#include "samples/BgrColour.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

namespace Orvane {

namespace {

const QString FormatKey = QStringLiteral("format");
const QString FormatName = QStringLiteral("layer settings");
const QString VersionKey = QStringLiteral("version");
const QString SettingsKey = QStringLiteral("settings");
const QString PatternKey = QStringLiteral("pattern");
const QString WidthKey = QStringLiteral("width");
const QString MinimumKey = QStringLiteral("minimum");
const QString MaximumKey = QStringLiteral("maximum");
const QString NumberKey = QStringLiteral("number");
const QString NameKey = QStringLiteral("name");
const QString TransparentName = QStringLiteral("transparent");

constexpr int NewestVersion = 1;
constexpr qsizetype LargestCopy = 65536; // bytes; a real one has less than one thousand
constexpr qsizetype LongestStyleName = 1000; // characters

struct NumberRange {
    qint32 smallest;
    qint32 largest;
};

constexpr NumberRange LinePatterns{0, 19}; // from 20 on the panel takes it for a width
constexpr NumberRange LineWidths{-1638, 1638};
constexpr NumberRange FillStyles{0, LastFillStyle};
constexpr NumberRange DrawPriorities{0, 32767};
constexpr NumberRange AnyNumber{std::numeric_limits<qint32>::min(), std::numeric_limits<qint32>::max()};
constexpr double LargestDenominator = 1e12;

constexpr std::array ColourSettings{Setting::LineColour, Setting::FillColour, Setting::Background};

QString KeyOf(Setting setting)
{
    return QLatin1String(EntryOf(setting).key);
}

qint16 FirstSlot(Setting setting)
{
    return EntryOf(setting).slotNumbers[0];
}

// ---- writing

QJsonValue JsonOf(const Value& number)
{
    const std::optional<double> known = NumberIn(number);
    return known ? QJsonValue(*known) : QJsonValue();
}

QString ColourText(qint32 colour)
{
    return IsTransparent(colour) ? TransparentName : QColorFromBgr(colour).name();
}

void Put(QJsonObject& settings, Setting setting, const QJsonValue& value)
{
    if (!value.isNull())
        settings.insert(KeyOf(setting), value);
}

void PutFlags(QJsonObject& settings, const LayerStyle& style)
{
    for (const SettingEntry& entry : AllSettings) {
        const Value flag
            = entry.group == SettingGroup::Flags ? style.lsGet(entry.slotNumbers[0]) : Value::Null();
        if (const bool* isSet = flag.Get<bool>())
            Put(settings, entry.setting, *isSet);
    }
}

void PutColours(QJsonObject& settings, const LayerStyle& style)
{
    for (const Setting setting : ColourSettings) {
        if (const std::optional<qint32> colour = Int32In(style.lsGet(FirstSlot(setting))))
            Put(settings, setting, ColourText(*colour));
    }
}

void PutNumbers(QJsonObject& settings, const LayerStyle& style)
{
    Put(settings, Setting::FillStyle, JsonOf(style.lsGet(Slot::FillStyle)));
    Put(settings, Setting::DrawPriority, JsonOf(style.lsGet(Slot::DrawPriority)));
    const QJsonValue pattern = JsonOf(style.lsGet(Slot::OutlineStyle));
    const QJsonValue width = JsonOf(style.lsGet(Slot::LineThickness));
    if (!pattern.isNull() && !width.isNull())
        Put(settings, Setting::LineStyle, QJsonObject{{PatternKey, pattern}, {WidthKey, width}});
}

void PutOthers(QJsonObject& settings, const CopiedSettings& copied)
{
    const QString mode = QuickModeNames::NameOf(copied.quickMode);
    if (!mode.isEmpty())
        Put(settings, Setting::Mode, mode);
    if (const auto& scales = copied.scales) {
        Put(settings, Setting::VisibleScales,
            QJsonObject{{MinimumKey, scales->minimum}, {MaximumKey, scales->maximum}});
    }
    if (const auto& style = copied.rendererStyle)
        Put(settings, Setting::RendererStyle,
            QJsonObject{{NumberKey, style->number}, {NameKey, style->name}});
}

// ---- reading

Value NumberFrom(const QJsonValue& json, const NumberRange& range)
{
    const double number = json.toDouble(std::nan(""));
    const bool isWhole = number >= range.smallest && number <= range.largest && number == std::floor(number);
    return isWhole ? Value(qint32(number)) : Value::Null();
}

bool IsHexDigit(QChar character)
{
    const char16_t digit = character.unicode();
    return (digit >= u'0' && digit <= u'9') || (digit >= u'a' && digit <= u'f')
        || (digit >= u'A' && digit <= u'F');
}

Value ColourFrom(const QJsonValue& json, bool mayBeTransparent)
{
    const QString text = json.toString();
    if (text == TransparentName && mayBeTransparent)
        return TransparentColour;
    const bool isColour
        = text.size() == 7 && text.front() == u'#' && std::all_of(text.begin() + 1, text.end(), IsHexDigit);
    return isColour ? Value(Bgr(QRgb(text.mid(1).toUInt(nullptr, 16)))) : Value::Null();
}

std::optional<double> DenominatorFrom(const QJsonValue& json)
{
    const double number = json.toDouble(std::nan(""));
    return number >= 0 && number <= LargestDenominator ? std::optional(number) : std::nullopt;
}

void TakeFlags(const QJsonObject& settings, LayerStyle& style)
{
    for (const SettingEntry& entry : AllSettings) {
        const QJsonValue flag = settings.value(QLatin1String(entry.key));
        if (entry.group == SettingGroup::Flags && flag.isBool())
            style.lsSet(entry.slotNumbers[0], flag.toBool());
    }
}

void TakeColours(const QJsonObject& settings, LayerStyle& style)
{
    for (const Setting setting : ColourSettings) {
        const bool isFill = setting != Setting::LineColour;
        style.lsSet(FirstSlot(setting), ColourFrom(settings.value(KeyOf(setting)), isFill));
    }
}

void TakeNumbers(const QJsonObject& settings, LayerStyle& style)
{
    style.lsSet(Slot::FillStyle, NumberFrom(settings.value(KeyOf(Setting::FillStyle)), FillStyles));
    style.lsSet(Slot::DrawPriority, NumberFrom(settings.value(KeyOf(Setting::DrawPriority)), DrawPriorities));
    const QJsonObject line = settings.value(KeyOf(Setting::LineStyle)).toObject();
    const Value pattern = NumberFrom(line.value(PatternKey), LinePatterns);
    const Value width = NumberFrom(line.value(WidthKey), LineWidths);
    if (pattern.IsNull() || width.IsNull())
        return;
    style.lsSet(Slot::OutlineStyle, pattern);
    style.lsSet(Slot::LineThickness, width);
}

std::optional<CopiedSettings::Scales> ScalesFrom(const QJsonObject& json)
{
    const std::optional<double> minimum = DenominatorFrom(json.value(MinimumKey));
    const std::optional<double> maximum = DenominatorFrom(json.value(MaximumKey));
    if (!minimum || !maximum)
        return std::nullopt;
    return CopiedSettings::Scales{*minimum, *maximum};
}

std::optional<RendererStyle> RendererStyleFrom(const QJsonObject& json)
{
    const Value number = NumberFrom(json.value(NumberKey), AnyNumber);
    const QJsonValue name = json.value(NameKey);
    if (number.IsNull() || !name.isString() || name.toString().size() > LongestStyleName)
        return std::nullopt;
    return RendererStyle{*number.Get<qint32>(), name.toString()};
}

bool IsReadable(const QJsonObject& whole)
{
    const Value version = NumberFrom(whole.value(VersionKey), {1, NewestVersion});
    return whole.value(FormatKey).toString() == FormatName && !version.IsNull();
}

} // namespace

bool CopiedSettings::IsEmpty() const
{
    bool isEmpty = quickMode == QuickMode::Various && !scales && !rendererStyle;
    for (qint16 slot = 0; slot < LayerStyle::SlotCount; ++slot)
        isEmpty = isEmpty && style.lsIsNull(slot);
    return isEmpty;
}

QByteArray CopiedSettings::ToBytes() const
{
    QJsonObject settings;
    PutFlags(settings, style);
    PutColours(settings, style);
    PutNumbers(settings, style);
    PutOthers(settings, *this);
    const QJsonObject whole{{FormatKey, FormatName}, {VersionKey, NewestVersion}, {SettingsKey, settings}};
    return QJsonDocument(whole).toJson(QJsonDocument::Compact);
}

std::optional<CopiedSettings> CopiedSettings::FromBytes(const QByteArray& bytes)
{
    if (bytes.size() > LargestCopy)
        return std::nullopt;
    const QJsonObject whole = QJsonDocument::fromJson(bytes).object();
    if (!IsReadable(whole))
        return std::nullopt;
    const QJsonObject settings = whole.value(SettingsKey).toObject();
    CopiedSettings read;
    TakeFlags(settings, read.style);
    TakeColours(settings, read.style);
    TakeNumbers(settings, read.style);
    read.quickMode = QuickModeNames::ModeOf(settings.value(KeyOf(Setting::Mode)).toString());
    read.scales = ScalesFrom(settings.value(KeyOf(Setting::VisibleScales)).toObject());
    read.rendererStyle = RendererStyleFrom(settings.value(KeyOf(Setting::RendererStyle)).toObject());
    return read;
}

} // namespace Orvane
