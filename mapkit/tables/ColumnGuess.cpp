// SPDX-License-Identifier: MIT
#include "mapkit/tables/ColumnGuess.h"

#include <QLocale>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <utility>

namespace Orvane {

namespace {

// Words for east and north that belong together; the surest come first.
constexpr std::array<std::pair<const char*, const char*>, 22> CoordinateWords = {{
    {"longitude", "latitude"},
    {"lon", "lat"},
    {"lng", "lat"},
    {"long", "lat"},
    {"laengengrad", "breitengrad"},
    {"laenge", "breite"},
    {"longitud", "latitud"},
    {"longitudine", "latitudine"},
    {"easting", "northing"},
    {"eastings", "northings"},
    {"ostwert", "nordwert"},
    {"rechtswert", "hochwert"},
    {"rechts", "hoch"},
    {"rw", "hw"},
    {"est", "nord"},
    {"ost", "nord"},
    {"east", "north"},
    {"xcoord", "ycoord"},
    {"xkoordinate", "ykoordinate"},
    {"x", "y"},
    {"e", "n"},
    {"o", "n"},
}};

constexpr std::array<const char*, 9> GeometryWords
    = {"wkt", "geom", "geometry", "geometrie", "geometria", "geo", "shape", "wktgeom", "thegeom"};

// "Geo Länge" and "geoLaenge" both become "geo", "laenge".
QStringList WordsOf(const QString& column)
{
    static const QRegularExpression boundary(QStringLiteral("(?<=[a-z])(?=[A-Z])"));
    static const QRegularExpression others(QStringLiteral("[^a-z0-9]+"));
    QString name = column;
    name.replace(boundary, QStringLiteral(" "));
    name = name.toLower().replace(QChar(0xe4), QLatin1String("ae")).replace(QChar(0xf6), QLatin1String("oe"));
    return name.split(others, Qt::SkipEmptyParts);
}

bool LooksLikeGeometry(const QString& text)
{
    static const QRegularExpression beginning(
        QStringLiteral("^\\s*(SRID=\\d+;)?(MULTI)?(POINT|LINESTRING|POLYGON|GEOMETRYCOLLECTION|CURVE|SURFACE|"
                       "CIRCULARSTRING|COMPOUNDCURVE|CURVEPOLYGON)\\s*(ZM|Z|M)?\\s*(\\(|EMPTY)"),
        QRegularExpression::CaseInsensitiveOption);
    return beginning.match(text).hasMatch();
}

bool LooksLikeNumber(const QString& text)
{
    return NumberOf(text).has_value();
}

// Empty values suit everything, but not alone.
template <typename Test> bool Suits(const TableRows& table, qsizetype column, const Test& test)
{
    bool suits = table.rows.empty();
    for (const QStringList& row : table.rows) {
        if (row.at(column).trimmed().isEmpty())
            continue;
        if (!test(row.at(column)))
            return false;
        suits = true;
    }
    return suits;
}

QString FindGeometry(const TableRows& table)
{
    if (table.rows.empty())
        return {};
    QString found;
    for (qsizetype i = 0; i < table.columns.size(); ++i) {
        if (!Suits(table, i, LooksLikeGeometry))
            continue;
        const QString word = WordsOf(table.columns[i]).join(QString());
        const bool isUsual = std::any_of(GeometryWords.begin(), GeometryWords.end(), [&](const char* usual) {
            return word == QLatin1String(usual);
        });
        if (isUsual)
            return table.columns[i];
        if (found.isEmpty())
            found = table.columns[i];
    }
    return found;
}

// The column whose name has these words, and whose values are numbers; -1 if there is none.
qsizetype NumbersNamed(const TableRows& table, const QStringList& words)
{
    for (qsizetype i = 0; i < table.columns.size(); ++i) {
        if (WordsOf(table.columns[i]) == words && Suits(table, i, LooksLikeNumber))
            return i;
    }
    return -1;
}

// isAlone: the name has no other words.
CoordinateColumns FindPair(const TableRows& table, const char* east, const char* north, bool isAlone)
{
    for (qsizetype i = 0; i < table.columns.size(); ++i) {
        QStringList words = WordsOf(table.columns[i]);
        const qsizetype place = words.indexOf(QLatin1String(east));
        if (place < 0 || isAlone != (words.size() == 1) || !Suits(table, i, LooksLikeNumber))
            continue;
        words[place] = QLatin1String(north);
        const qsizetype other = NumbersNamed(table, words);
        if (other >= 0)
            return {table.columns[i], table.columns[other], {}};
    }
    return {};
}

std::optional<double> PlainNumber(const QString& text)
{
    bool isNumber = false;
    QLocale plain = QLocale::c();
    plain.setNumberOptions(QLocale::RejectGroupSeparator);
    const double value = plain.toDouble(text, &isNumber);
    return isNumber ? std::optional(value) : std::nullopt;
}

// Without what parts groups of three digits and is no decimal sign anywhere: apostrophes and spaces. A comma
// or a point that stands there more than once parts groups, too.
QString WithoutGroups(const QString& text)
{
    static const QRegularExpression grouped(
        QStringLiteral("^[+-]?[0-9]{1,3}(['\\x{2019}\\x{20}\\x{a0}\\x{202f}\\x{2009}])[0-9]{3}(\\1[0-9]{3})*("
                       "[.,][0-9]*)?$"));
    static const QRegularExpression several(QStringLiteral("^[+-]?[0-9]{1,3}([.,])[0-9]{3}(\\1[0-9]{3})+$"));
    for (const QRegularExpression& groups : {grouped, several}) {
        const QRegularExpressionMatch match = groups.match(text);
        if (match.hasMatch())
            return QString(text).remove(match.captured(1));
    }
    return text;
}

} // namespace

std::optional<double> NumberOf(const QString& text)
{
    QString number = text.trimmed();
    if (const auto plain = PlainNumber(number))
        return plain;
    number = WithoutGroups(number);
    const qsizetype comma = number.lastIndexOf(QLatin1Char(','));
    const qsizetype point = number.lastIndexOf(QLatin1Char('.'));
    if (comma > point)
        number.remove(QLatin1Char('.')).replace(QLatin1Char(','), QLatin1Char('.'));
    else if (comma >= 0)
        number.remove(QLatin1Char(','));
    return PlainNumber(number);
}

CoordinateColumns GuessColumns(const TableRows& table)
{
    for (const bool isAlone : {true, false}) {
        for (const auto& [east, north] : CoordinateWords) {
            CoordinateColumns found = FindPair(table, east, north, isAlone);
            if (!found.IsEmpty())
                return found;
        }
    }
    return {{}, {}, FindGeometry(table)};
}

bool HoldNumbers(const TableRows& table, const CoordinateColumns& columns)
{
    const qsizetype x = table.columns.indexOf(columns.x);
    const qsizetype y = table.columns.indexOf(columns.y);
    return x >= 0 && y >= 0 && std::all_of(table.rows.begin(), table.rows.end(), [&](const QStringList& row) {
               return LooksLikeNumber(row[x]) && LooksLikeNumber(row[y]);
           });
}

} // namespace Orvane
