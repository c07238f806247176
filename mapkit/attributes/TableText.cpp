// SPDX-License-Identifier: MIT
#include "mapkit/attributes/TableText.h"

#include "mapkit/attributes/TableSource.h"
#include "mapkit/common/Progress.h"
#include "mapkit/files/ReadingBound.h"

#include <QStringList>

#include <algorithm>

namespace Orvane {

namespace {

constexpr size_t RowsAtOnce = 16384;

QString Plain(QString text)
{
    for (const char16_t separator : {u'\t', u'\n', u'\r'})
        text.replace(QChar(separator), QLatin1Char(' '));
    return text;
}

QString LineOf(const QStringList& cells)
{
    return cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
}

QString HeaderLine(const std::vector<TableColumn>& columns)
{
    QStringList names;
    names.reserve(int(columns.size()));
    for (const TableColumn& column : columns)
        names << Plain(column.name);
    return LineOf(names);
}

QString RowLine(const TableRow& row, const QLocale& locale)
{
    QStringList cells;
    cells.reserve(int(row.size()));
    for (const QVariant& value : row)
        cells << Plain(CellText(value, locale));
    return LineOf(cells);
}

} // namespace

QString TableText(
    const LayerSource& source, const std::vector<qint64>& ids, const QLocale& locale, Progress& progress)
{
    const ReadingBound untilCancelled(progress.CancelledFlag());
    progress.SetSubject(source.path);
    TableSource table(source);
    QString text = HeaderLine(table.Columns());
    for (size_t begin = 0; begin < ids.size(); begin += RowsAtOnce) {
        const size_t end = std::min(ids.size(), begin + RowsAtOnce);
        const std::vector<qint64> some(ids.begin() + qptrdiff(begin), ids.begin() + qptrdiff(end));
        const TableSource::RowsByID rows = table.Rows(some, progress);
        for (const qint64 id : some) {
            if (const auto row = rows.find(id); row != rows.end())
                text += RowLine(row->second, locale);
        }
        progress.Report(double(end) / double(ids.size()));
    }
    return text;
}

} // namespace Orvane
