// SPDX-License-Identifier: MIT
#include "store/shared/ConstantDefault.h"

#include <QRegularExpression>

namespace Orvane {

namespace {

// The whole text; the first group is the constant. A server adds the type.
QString ConstantIn(const QString& text, const char* pattern)
{
    const QString type = QStringLiteral("(?:::[a-z ]+)?");
    const QRegularExpression expression(
        QRegularExpression::anchoredPattern(QLatin1String(pattern) + type),
        QRegularExpression::CaseInsensitiveOption);
    return expression.match(text).captured(1);
}

} // namespace

QString ConstantDefault(const QString& expression)
{
    const QString text = expression.trimmed();
    const QString flag = ConstantIn(text, "(true|false)");
    if (!flag.isEmpty())
        return flag.toUpper();
    // A server writes a negative number in brackets or in quotes.
    for (const char* pattern :
         {R"('([+-]?[0-9.]+(?:e[+-]?[0-9]+)?)'::(?:integer|numeric|double precision))",
          R"(\(?([+-]?[0-9]+(?:\.[0-9]*)?(?:e[+-]?[0-9]+)?)\)?)", R"(('(?:[^'\\\x{0}]|'')*'))"}) {
        QString constant = ConstantIn(text, pattern);
        if (!constant.isEmpty())
            return constant;
    }
    return {};
}

} // namespace Orvane
