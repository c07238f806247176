// SPDX-License-Identifier: MIT
#include "mapkit/drawing/ScaleText.h"

#include "mapkit/drawing/RoundedScale.h"

#include <QCoreApplication>
#include <QLocale>
#include <QRegularExpression>

namespace Orvane {

QString ScaleText(double denominator)
{
    return QCoreApplication::translate("ScaleText", "1:%1")
        .arg(QLocale().toString(RoundedScale(denominator), 'f', 0));
}

std::optional<double> ReadScale(const QString& text)
{
    static const QRegularExpression parts(
        QStringLiteral("^(?:1[:\\x{FF1A}/])?(\\d{1,3}(?:[.,'\\x{2019}]\\d{2,3})*[.,'\\x{2019}]\\d{3}|\\d+)$"),
        QRegularExpression::UseUnicodePropertiesOption);
    static const QRegularExpression spaces(
        QStringLiteral("\\s"), QRegularExpression::UseUnicodePropertiesOption);
    static const QRegularExpression groups(QStringLiteral("[.,'\\x{2019}]"));
    const QRegularExpressionMatch match = parts.match(QString(text).remove(spaces));
    if (!match.hasMatch())
        return std::nullopt;
    const QString digits = match.captured(1).remove(groups);
    bool isNumber = false;
    double denominator = QLocale().toDouble(digits, &isNumber);
    if (!isNumber)
        denominator = QLocale::c().toDouble(digits, &isNumber);
    if (!isNumber || denominator < MinScaleDenominator || denominator > MaxScaleDenominator)
        return std::nullopt;
    return denominator;
}

} // namespace Orvane
