// SPDX-License-Identifier: MIT
#include "hostkit/manager/SchemeValueTexts.h"

#include "hostkit/common/StoredScale.h"
#include "hostkit/schemes/SchemeColumns.h"

#include <OrvaneShellLib/IStyleEditorClient.h>
#include <OrvaneShellLib/LayerValues.h>

#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <array>
#include <string_view>

namespace Orvane {

namespace {

struct ColumnCaption {
    std::string_view column;
    const char* caption; ///< English
};

constexpr std::array Captions{
    ColumnCaption{"Visible", QT_TRANSLATE_NOOP("SchemeValueTexts", "Visible")},
    ColumnCaption{"Selectable", QT_TRANSLATE_NOOP("SchemeValueTexts", "Selectable")},
    ColumnCaption{"locked", QT_TRANSLATE_NOOP("SchemeValueTexts", "Locked")},
    ColumnCaption{"Hitable", QT_TRANSLATE_NOOP("SchemeValueTexts", "Hitable")},
    ColumnCaption{"SnapRequired", QT_TRANSLATE_NOOP("SchemeValueTexts", "Snap required")},
    ColumnCaption{"Enquirable", QT_TRANSLATE_NOOP("SchemeValueTexts", "Enquirable")},
    ColumnCaption{"Color", QT_TRANSLATE_NOOP("SchemeValueTexts", "Line colour")},
    ColumnCaption{"FillForeColor", QT_TRANSLATE_NOOP("SchemeValueTexts", "Fill colour")},
    ColumnCaption{"FillBackColor", QT_TRANSLATE_NOOP("SchemeValueTexts", "Background")},
    ColumnCaption{"OutlineStyle", QT_TRANSLATE_NOOP("SchemeValueTexts", "Line style")},
    ColumnCaption{"FillStyle", QT_TRANSLATE_NOOP("SchemeValueTexts", "Fill style")},
    ColumnCaption{"LineThickness", QT_TRANSLATE_NOOP("SchemeValueTexts", "Line thickness")},
    ColumnCaption{"MinVisScale", QT_TRANSLATE_NOOP("SchemeValueTexts", "Minimum visible scale")},
    ColumnCaption{"MaxVisScale", QT_TRANSLATE_NOOP("SchemeValueTexts", "Maximum visible scale")},
    ColumnCaption{"Priority", QT_TRANSLATE_NOOP("SchemeValueTexts", "Priority")},
    ColumnCaption{"Style", QT_TRANSLATE_NOOP("SchemeValueTexts", "Style")},
    ColumnCaption{"OverrideMode", QT_TRANSLATE_NOOP("SchemeValueTexts", "Display mode")},
};

constexpr std::array LineStyles{
    QT_TRANSLATE_NOOP("SchemeValueTexts", "Solid line"), QT_TRANSLATE_NOOP("SchemeValueTexts", "Dashed line"),
    QT_TRANSLATE_NOOP("SchemeValueTexts", "Dotted line"),
    QT_TRANSLATE_NOOP("SchemeValueTexts", "Dash-dot line"),
    QT_TRANSLATE_NOOP("SchemeValueTexts", "Dash-dot-dot line")};

constexpr std::array DisplayModes{
    QT_TRANSLATE_NOOP("SchemeValueTexts", "Normal"), QT_TRANSLATE_NOOP("SchemeValueTexts", "Backdrop"),
    QT_TRANSLATE_NOOP("SchemeValueTexts", "Hidden")};

std::string_view NameOf(std::size_t column)
{
    return SchemeColumns::All.at(column).name;
}

bool IsColour(std::string_view name)
{
    return name == "Color" || name == "FillForeColor" || name == "FillBackColor";
}

// Columns may hold any number; those beyond the range of colours count as their low bits.
QColor ColourOf(qint64 bgr)
{
    return {int(bgr & 0xFF), int(bgr >> 8 & 0xFF), int(bgr >> 16 & 0xFF)};
}

bool HasTopByte(qint64 bgr)
{
    return (quint32(bgr) & 0xFF000000U) != 0;
}

template <std::size_t Size> QString Listed(const std::array<const char*, Size>& texts, qint64 number)
{
    return number < 0 || number >= qint64(Size) ? QLocale().toString(number)
                                                : SchemeValueTexts::tr(texts.at(std::size_t(number)));
}

QString ColourText(std::string_view name, qint64 bgr)
{
    if (name != "Color")
        return HasTopByte(bgr) ? SchemeValueTexts::tr("Transparent") : ColourOf(bgr).name().toUpper();
    const QString colour = ColourOf(bgr).name().toUpper();
    return HasTopByte(bgr) ? SchemeValueTexts::tr("%1, not for symbols").arg(colour) : colour;
}

QString LineStyleText(qint64 number)
{
    constexpr qint64 noLine = 15;
    return number == noLine ? SchemeValueTexts::tr("<none>") : Listed(LineStyles, number);
}

QString FillStyleText(qint64 number)
{
    if (number == SolidFill)
        return SchemeValueTexts::tr("Solid");
    return number == HollowFill ? SchemeValueTexts::tr("Outline only")
                                : SchemeValueTexts::tr("Pattern %1").arg(QLocale().toString(number));
}

QString ThicknessText(qint64 number)
{
    if (number == 0)
        return SchemeValueTexts::tr("Thinnest line");
    return number > 0 ? SchemeValueTexts::tr("%1 mm").arg(QLocale().toString(number))
                      : SchemeValueTexts::tr("Pixels: %1").arg(QLocale().toString(-number));
}

QString ScaleText(double scale)
{
    if (scale == StoredScale::NoLimit || scale >= StoredScale::BeyondAllScales)
        return SchemeValueTexts::tr("dont care");
    return QStringLiteral("1:") + QLocale().toString(qint64(scale));
}

} // namespace

SchemeValueTexts::SchemeValueTexts(const IStyleEditorClient& client)
    : m_rendererStyles(client.RendererStyles())
{
}

SchemeValueTexts::~SchemeValueTexts() = default;

QString SchemeValueTexts::Property(std::size_t column)
{
    const auto* found = std::find_if(Captions.begin(), Captions.end(), [&](const ColumnCaption& caption) {
        return caption.column == NameOf(column);
    });
    return found == Captions.end() ? QString::fromLatin1(SchemeColumns::All.at(column).name)
                                   : tr(found->caption);
}

QString SchemeValueTexts::Part(SchemePart part)
{
    switch (part) {
    case SchemePart::Flags:
        return tr("Flags");
    case SchemePart::Appearance:
        return tr("Appearance");
    default:
        return tr("Scales");
    }
}

QString SchemeValueTexts::Parts(SchemeParts parts)
{
    if (parts == WholeScheme)
        return tr("All properties");
    QStringList names;
    for (const SchemePart part : AllSchemeParts) {
        if (parts.testFlag(part))
            names << Part(part);
    }
    return names.join(QStringLiteral(", "));
}

QString SchemeValueTexts::PropertiesOf(SchemePart part)
{
    QStringList names;
    for (std::size_t column = 0; column < SchemeColumns::Count; ++column) {
        if (PartOf(SchemeColumns::All.at(column)) == part)
            names << Property(column);
    }
    return names.join(QStringLiteral(", "));
}

QString SchemeValueTexts::Text(std::size_t column, const std::optional<double>& value) const
{
    if (!value)
        return tr("not known");
    const std::string_view name = NameOf(column);
    const auto number = qint64(*value);
    if (SchemeColumns::All.at(column).kind == ColumnKind::Flag)
        return *value != 0 ? tr("yes") : tr("no");
    if (SchemeColumns::All.at(column).kind == ColumnKind::Real)
        return ScaleText(*value);
    if (IsColour(name))
        return ColourText(name, number);
    if (name == "OutlineStyle")
        return LineStyleText(number);
    if (name == "FillStyle")
        return FillStyleText(number);
    if (name == "LineThickness")
        return ThicknessText(number);
    if (name == "OverrideMode")
        return Listed(DisplayModes, number);
    return name == "Style" ? RendererStyleName(int(number)) : QLocale().toString(number);
}

std::optional<QColor> SchemeValueTexts::Colour(std::size_t column, const std::optional<double>& value)
{
    const std::string_view name = NameOf(column);
    if (!value || !IsColour(name) || (name != "Color" && HasTopByte(qint64(*value))))
        return std::nullopt;
    return ColourOf(qint64(*value));
}

QString SchemeValueTexts::RendererStyleName(int number) const
{
    const auto found
        = std::find_if(m_rendererStyles.begin(), m_rendererStyles.end(), [&](const RendererStyle& style) {
              return style.number == number;
          });
    if (found != m_rendererStyles.end())
        return found->name;
    return number == 0 ? tr("Standard") : QLocale().toString(number);
}

} // namespace Orvane
