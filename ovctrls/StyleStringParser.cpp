// SPDX-License-Identifier: MIT
#include "ovctrls/StyleStringParser.h"

#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace Orvane {

namespace {

constexpr double farthest = 32767; // pixels; much more than a screen
constexpr QLatin1Char tab('\t');
constexpr QLatin1Char terminator('.');

std::optional<double> NumberIn(QStringView text)
{
    bool ok = false;
    const double number = QLocale::c().toDouble(text, &ok);
    if (!ok || !std::isfinite(number))
        return std::nullopt;
    return number;
}

double NumberOr(const QStringList& fields, qsizetype index, double otherwise)
{
    return index < fields.size() ? NumberIn(fields[index]).value_or(otherwise) : otherwise;
}

// Takes the low 32 bits, so that unsigned and signed colours can be read.
qint32 ColourIn(const QString& text)
{
    bool ok = false;
    const qlonglong number = text.toLongLong(&ok);
    return ok ? qint32(quint32(quint64(number))) : 0;
}

// "+n" is relative to the previous point.
std::optional<double> CoordinateIn(const QString& text, double before)
{
    const bool isRelative = text.startsWith(QLatin1Char('+'));
    const auto number = NumberIn(isRelative ? QStringView(text).mid(1) : QStringView(text));
    if (!number)
        return std::nullopt;
    return std::clamp(isRelative ? before + *number : *number, -farthest, farthest);
}

// The points before the first one that cannot be read.
QPolygonF PointsIn(const QString& text, QPointF before)
{
    QPolygonF points;
    const QStringList fields = text.split(QLatin1Char(','));
    for (qsizetype field = 0; field + 1 < fields.size(); field += 2) {
        const auto x = CoordinateIn(fields[field], before.x());
        const auto y = CoordinateIn(fields[field + 1], before.y());
        if (!x || !y)
            break;
        before = QPointF(*x, *y);
        points.append(before);
    }
    return points;
}

void SetPen(Drawing& drawing, const QString& fields)
{
    const QStringList parts = fields.split(QLatin1Char('/'));
    drawing.penColour = ColourIn(parts[0]);
    drawing.penStyle = int(std::clamp(NumberOr(parts, 1, 0), 0.0, farthest));
    drawing.penWidth = std::clamp(NumberOr(parts, 2, 0), 0.0, farthest);
}

// Draws while the sub-commands are read.
class DrawingReader
{
public:
    explicit DrawingReader(const QString& body)
    {
        const QStringList parts = body.split(QLatin1Char(':'));
        Start(parts[0]);
        for (qsizetype part = 1; part < parts.size(); ++part)
            Read(parts[part]);
    }

    const Drawing& Result() const { return m_drawing; }

private:
    void Start(const QString& part)
    {
        if (part.startsWith(QLatin1String("DRP=")))
            SetPen(m_drawing, part.mid(4));
        else
            m_drawing.brushColour = ColourIn(part.mid(4).section(QLatin1Char('/'), 0, 0));
    }

    void Read(const QString& part)
    {
        if (part.startsWith(QLatin1String("P=")))
            SetPen(m_drawing, part.mid(2));
        else if (part.startsWith(QLatin1Char('M')))
            MoveTo(PointsIn(part.mid(1), m_position));
        else if (part.startsWith(QLatin1Char('F')))
            AddFigure(PointsIn(part.mid(1), m_position), true);
        else if (part.startsWith(QLatin1Char('D')))
            AddFigure(PointsIn(part.mid(1), m_position), false);
    }

    void MoveTo(const QPolygonF& points)
    {
        if (!points.isEmpty())
            m_position = points.last();
    }

    void AddFigure(QPolygonF points, bool isFilled)
    {
        if (points.isEmpty())
            return;
        points.prepend(m_position);
        m_position = points.last();
        m_drawing.figures.push_back({isFilled, points});
    }

    Drawing m_drawing;
    QPointF m_position;
};

bool IsDrawing(QStringView body)
{
    return body.startsWith(QLatin1String("DRB=")) || body.startsWith(QLatin1String("DRP="));
}

bool IsKnown(QStringView body)
{
    return IsDrawing(body) || body.startsWith(QLatin1String("FG=")) || body.startsWith(QLatin1String("FC"))
        || body.startsWith(QLatin1String("UD."));
}

// A point between two digits of a drawing is a decimal point.
bool EndsDrawing(const QString& item, qsizetype point)
{
    const bool afterDigit = point > 0 && item.at(point - 1).isDigit();
    const bool beforeDigit = point + 1 < item.size() && item.at(point + 1).isDigit();
    return !(afterDigit && beforeDigit);
}

qsizetype EndOfDrawing(const QString& item, qsizetype start)
{
    qsizetype end = item.indexOf(terminator, start);
    while (end >= 0 && !EndsDrawing(item, end))
        end = item.indexOf(terminator, end + 1);
    return end;
}

// The end of the command that starts there; the end of the item if the command's point is missing.
qsizetype EndOfCommand(const QString& item, qsizetype start)
{
    const QStringView body = QStringView(item).mid(start);
    qsizetype end = -1;
    if (IsDrawing(body)) {
        end = EndOfDrawing(item, start);
    } else if (body.startsWith(QLatin1String("FC"))) {
        const qsizetype comma = item.indexOf(QLatin1String(",."), start); // face names may contain points
        end = comma < 0 ? item.indexOf(terminator, start) : comma + 1;
    } else {
        end = item.indexOf(terminator, start);
    }
    return end < 0 ? item.size() : end;
}

std::optional<StyleElement> CommandIn(const QString& body)
{
    if (IsDrawing(body))
        return DrawingReader(body).Result();
    if (body.startsWith(QLatin1String("FG=")))
        return ForeColour{ColourIn(body.mid(3))};
    if (body.startsWith(QLatin1String("FC"))) {
        const QStringList fields = body.mid(2).split(QLatin1Char(','));
        return FontChange{fields[0], NumberOr(fields, 1, 0)};
    }
    if (body == QLatin1String("UD"))
        return UserDrawn{};
    return std::nullopt;
}

class ItemReader
{
public:
    ItemReader(const QString& item, const QString& prefix, bool withDrawings)
        : m_item(item), m_prefix(prefix), m_withDrawings(withDrawings)
    {
    }

    std::vector<StyleElement> Read()
    {
        while (m_position < m_item.size()) {
            if (IsAtCommand())
                ReadCommand();
            else if (m_item.at(m_position) == tab)
                ReadTab();
            else
                ReadText();
        }
        return m_elements;
    }

private:
    bool IsAtCommand() const
    {
        const QStringView rest = QStringView(m_item).mid(m_position);
        return m_prefix.isEmpty() ? IsKnown(rest) : rest.startsWith(m_prefix);
    }

    void ReadCommand()
    {
        const qsizetype start = m_position + m_prefix.size();
        const qsizetype end = EndOfCommand(m_item, start);
        const QString body = m_item.mid(start, end - start);
        const auto element = m_withDrawings || !IsDrawing(body) ? CommandIn(body) : std::nullopt;
        if (element)
            m_elements.push_back(*element);
        m_position = end + 1;
    }

    void ReadTab()
    {
        m_elements.push_back(TabStop{});
        ++m_position;
    }

    void ReadText()
    {
        const qsizetype command = m_prefix.isEmpty() ? -1 : m_item.indexOf(m_prefix, m_position);
        const qsizetype nextTab = m_item.indexOf(tab, m_position);
        qsizetype end = m_item.size();
        for (const qsizetype stop : {command, nextTab})
            end = stop < 0 ? end : std::min(end, stop);
        m_elements.push_back(TextRun{m_item.mid(m_position, end - m_position)});
        m_position = end;
    }

    const QString& m_item;
    const QString& m_prefix;
    bool m_withDrawings;
    qsizetype m_position = 0;
    std::vector<StyleElement> m_elements;
};

} // namespace

std::vector<StyleElement> ParseStyleString(const QString& item, const QString& prefix)
{
    return ItemReader(item, prefix, true).Read();
}

std::vector<StyleElement> ParseStyleTexts(const QString& item, const QString& prefix)
{
    return ItemReader(item, prefix, false).Read();
}

} // namespace Orvane
