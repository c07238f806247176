// SPDX-License-Identifier: MIT
#include "qgis/plugin/RefusalText.h"

#include "messages/NameInText.h"

#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <array>

namespace Orvane {

namespace {

struct ColumnTitle {
    std::string_view column;
    const char* title;
};

constexpr std::array titles{
    ColumnTitle{"Code", QT_TRANSLATE_NOOP("RefusalText", "code")},
    ColumnTitle{"Visible", QT_TRANSLATE_NOOP("RefusalText", "visible")},
    ColumnTitle{"Selectable", QT_TRANSLATE_NOOP("RefusalText", "selectable")},
    ColumnTitle{"locked", QT_TRANSLATE_NOOP("RefusalText", "locked")},
    ColumnTitle{"Hitable", QT_TRANSLATE_NOOP("RefusalText", "hitable")},
    ColumnTitle{"SnapRequired", QT_TRANSLATE_NOOP("RefusalText", "snap required")},
    ColumnTitle{"Enquirable", QT_TRANSLATE_NOOP("RefusalText", "enquirable")},
    ColumnTitle{"Color", QT_TRANSLATE_NOOP("RefusalText", "line colour, or its use for symbols")},
    ColumnTitle{"FillForeColor", QT_TRANSLATE_NOOP("RefusalText", "fill colour")},
    ColumnTitle{"FillBackColor", QT_TRANSLATE_NOOP("RefusalText", "background")},
    ColumnTitle{"OutlineStyle", QT_TRANSLATE_NOOP("RefusalText", "line style")},
    ColumnTitle{"FillStyle", QT_TRANSLATE_NOOP("RefusalText", "fill style")},
    ColumnTitle{"LineThickness", QT_TRANSLATE_NOOP("RefusalText", "line width")},
    ColumnTitle{"MinVisScale", QT_TRANSLATE_NOOP("RefusalText", "minimum scale")},
    ColumnTitle{"MaxVisScale", QT_TRANSLATE_NOOP("RefusalText", "maximum scale")},
    ColumnTitle{"Priority", QT_TRANSLATE_NOOP("RefusalText", "draw priority")},
    ColumnTitle{"Style", QT_TRANSLATE_NOOP("RefusalText", "style")},
    ColumnTitle{"OverrideMode", QT_TRANSLATE_NOOP("RefusalText", "display mode")}};

QString TitleOf(std::string_view column)
{
    const auto found = std::find_if(
        titles.begin(), titles.end(), [column](const ColumnTitle& each) { return each.column == column; });
    return found == titles.end() ? QString::fromLatin1(column.data(), int(column.size()))
                                 : RefusalText::tr(found->title);
}

QString TitlesOf(const RefusedColumns& layer)
{
    QStringList named;
    named.reserve(int(layer.columns.size()));
    for (const std::string_view column : layer.columns)
        named << TitleOf(column);
    return named.join(QLatin1String("; "));
}

} // namespace

QString RefusalText::Of(const std::vector<RefusedColumns>& layers)
{
    const RefusedColumns& first = layers.front();
    const QString name = NameInText(first.layer);
    if (layers.size() == 1)
        return tr("QGIS cannot set this for the layer \"%1\": %2.").arg(name, TitlesOf(first));
    return tr("QGIS cannot set this for the layer \"%1\": %2. Other layers with settings that could not be "
              "set: %3.")
        .arg(name, TitlesOf(first), QLocale().toString(qulonglong(layers.size() - 1)));
}

} // namespace Orvane
