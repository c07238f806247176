// SPDX-License-Identifier: MIT
#include "hostkit/tracing/TraceText.h"

#include <OrvaneShellLib/ValueConversions.h>

namespace Orvane::TraceText {

namespace {

QString Escaped(QChar character)
{
    switch (character.unicode()) {
    case u'"':
        return QStringLiteral("\\\"");
    case u'\\':
        return QStringLiteral("\\\\");
    case u'\n':
        return QStringLiteral("\\n");
    case u'\r':
        return QStringLiteral("\\r");
    case u'\t':
        return QStringLiteral("\\t");
    default:
        break;
    }
    const bool breaksLines = character.unicode() < 0x20 || character == QChar::LineSeparator
        || character == QChar::ParagraphSeparator || character.unicode() == 0x85;
    return breaksLines ? QStringLiteral("\\u%1").arg(character.unicode(), 4, 16, QLatin1Char('0'))
                       : QString(character);
}

} // namespace

QString Of(TraceWord word)
{
    return QString::fromLatin1(word.word);
}

QString Of(const QString& text)
{
    QString quoted = QStringLiteral("\"");
    for (const QChar character : text)
        quoted += Escaped(character);
    return quoted + u'"';
}

QString Of(std::string_view text)
{
    return Of(QString::fromUtf8(text.data(), qsizetype(text.size())));
}

QString Of(bool flag)
{
    return flag ? QStringLiteral("true") : QStringLiteral("false");
}

QString Of(qint16 number)
{
    return QString::number(number);
}

QString Of(qint32 number)
{
    return QString::number(number);
}

QString Of(double number)
{
    return std::isfinite(number) ? ToText(number) : QString::number(number);
}

QString Of(const Value& value)
{
    if (value.IsNull())
        return QStringLiteral("Null");
    if (value.IsEmpty())
        return QStringLiteral("Empty");
    if (const QString* text = value.Get<QString>())
        return Of(*text);
    return ToText(value);
}

QString Of(const QStringList& texts)
{
    QStringList quoted;
    for (const QString& text : texts)
        quoted << Of(text);
    return u'[' + quoted.join(QStringLiteral(", ")) + u']';
}

QString Of(EntryKind kind)
{
    return kind == EntryKind::Integer ? QStringLiteral("integer") : QStringLiteral("text");
}

QString Of(const PromptAnswer& answer)
{
    return answer.accepted ? Of(answer.text) : QStringLiteral("cancelled");
}

QString Of(const std::vector<ConflictingEdit>& edits)
{
    QStringList listed;
    for (const ConflictingEdit& edit : edits)
        listed << QStringList{Of(edit.property), Of(edit.mine), Of(edit.stored), Of(qint32(edit.layers))}
                      .join(u' ');
    return u'[' + listed.join(QStringLiteral(", ")) + u']';
}

QString Of(ConflictChoice choice)
{
    switch (choice) {
    case ConflictChoice::Overwrite:
        return QStringLiteral("overwrite");
    case ConflictChoice::KeepStored:
        return QStringLiteral("keep stored");
    case ConflictChoice::Cancel:
        break;
    }
    return QStringLiteral("cancel");
}

QString Of(const std::vector<RendererStyle>& styles)
{
    QStringList listed;
    for (const RendererStyle& style : styles)
        listed << Of(style.number) + u' ' + Of(style.name);
    return u'[' + listed.join(QStringLiteral(", ")) + u']';
}

QString Of(const std::vector<qint32>& layerIDs)
{
    QStringList listed;
    listed.reserve(qsizetype(layerIDs.size()));
    for (const qint32 layerID : layerIDs)
        listed << Of(layerID);
    return u'[' + listed.join(QStringLiteral(", ")) + u']';
}

QString Of(const MonochromeBitmap& bitmap)
{
    return QStringLiteral("bitmap %1x%2").arg(bitmap.width).arg(bitmap.height);
}

} // namespace Orvane::TraceText
