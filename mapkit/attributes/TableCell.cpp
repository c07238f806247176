// SPDX-License-Identifier: MIT
#include "mapkit/attributes/TableCell.h"

#include <QDateTime>

#include <cmath>

namespace Orvane {

namespace {

// Numbers outside these are written with an exponent.
constexpr double LargestPlain = 1e15;
constexpr double SmallestPlain = 1e-5;

QString NumberText(double number, QLocale locale)
{
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    const double size = std::abs(number);
    const bool isPlain = size == 0 || (size >= SmallestPlain && size < LargestPlain);
    return locale.toString(number, isPlain ? 'f' : 'g', QLocale::FloatingPointShortest);
}

QString NumberText(qlonglong number, QLocale locale)
{
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(number);
}

QString DateText(const QDate& date, const QLocale& locale)
{
    QString format = locale.dateFormat(QLocale::ShortFormat);
    if (!format.contains(QLatin1String("yyyy")))
        format.replace(QLatin1String("yy"), QLatin1String("yyyy"));
    return locale.toString(date, format);
}

QString TimeText(const QTime& time, const QLocale& locale)
{
    return locale.toString(time, QStringLiteral("HH:mm:ss"));
}

} // namespace

QString CellText(const QVariant& value, const QLocale& locale)
{
    switch (value.userType()) {
    case QMetaType::LongLong:
        return NumberText(value.toLongLong(), locale);
    case QMetaType::Double:
        return NumberText(value.toDouble(), locale);
    case QMetaType::QDate:
        return DateText(value.toDate(), locale);
    case QMetaType::QTime:
        return TimeText(value.toTime(), locale);
    case QMetaType::QDateTime: {
        const QDateTime moment = value.toDateTime();
        return DateText(moment.date(), locale) + QLatin1Char(' ') + TimeText(moment.time(), locale);
    }
    default:
        return value.toString();
    }
}

} // namespace Orvane
