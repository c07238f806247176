// SPDX-License-Identifier: MIT
#include "messages/NameInText.h"

#include <algorithm>

namespace Orvane {

namespace {

bool BreaksLine(QChar sign)
{
    const QChar::Category category = sign.category();
    return category == QChar::Other_Control || category == QChar::Separator_Line
        || category == QChar::Separator_Paragraph;
}

} // namespace

QString NameInText(const QString& name, qsizetype longest)
{
    QString line = name.left(longest);
    if (name.size() > longest) {
        line.chop(line.size() > 1 && line.at(line.size() - 2).isHighSurrogate() ? 2 : 1);
        line += QChar(0x2026);
    }
    std::replace_if(line.begin(), line.end(), BreaksLine, QChar(QChar::Space));
    return line;
}

QString NameInQuestion(const QString& name)
{
    return NameInText(name, 80);
}

QString NameInStep(const QString& name)
{
    return NameInText(name, 40);
}

QString NameInMenu(const QString& name)
{
    return NameInText(name).replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace Orvane
