// SPDX-License-Identifier: MIT
#include "translations/SourceTexts.h"

#include "support/LinguistFile.h"

#include <QDir>
#include <QDirIterator>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>

namespace Orvane::Testing {

namespace {

// Finds literals and comments. They are not nested, so one pattern is enough.
const QRegularExpression& LiteralOrComment()
{
    static const QRegularExpression pattern(
        QStringLiteral(R"re("(?:[^"\\\n]|\\.)*"|'(?:[^'\\\n]|\\.)+'|//[^\n]*|/\*[\s\S]*?\*/)re"));
    return pattern;
}

QString WithoutComments(const QString& code)
{
    QString result;
    qsizetype end = 0;
    for (auto matches = LiteralOrComment().globalMatch(code); matches.hasNext();) {
        const auto match = matches.next();
        result += code.mid(end, match.capturedStart() - end);
        result += match.captured().startsWith('/') ? QStringLiteral(" ") : match.captured();
        end = match.capturedEnd();
    }
    return result + code.mid(end);
}

QString Unescaped(QString literal)
{
    static const QRegularExpression unicode(QStringLiteral(R"re(\\u([0-9A-Fa-f]{4}))re"));
    for (auto match = unicode.match(literal); match.hasMatch(); match = unicode.match(literal)) {
        const QChar character(match.captured(1).toUShort(nullptr, 16));
        literal.replace(match.capturedStart(), match.capturedLength(), character);
    }
    return literal.replace("\\n", "\n").replace("\\t", "\t").replace("\\\"", "\"").replace("\\\\", "\\");
}

// The texts of an argument: adjacent literals with only blanks between them are one text.
QStringList TextsOf(const QString& argument)
{
    QStringList texts;
    qsizetype end = -1;
    for (auto matches = LiteralOrComment().globalMatch(argument); matches.hasNext();) {
        const auto match = matches.next();
        if (!match.captured().startsWith('"'))
            continue;
        const QString text = Unescaped(match.captured().chopped(1).mid(1));
        const bool continues = end >= 0 && argument.mid(end, match.capturedStart() - end).trimmed().isEmpty();
        if (continues)
            texts.last() += text;
        else
            texts.append(text);
        end = match.capturedEnd();
    }
    return texts;
}

// The argument with this number in the call whose opening bracket is at this position.
QString Argument(const QString& code, qsizetype bracket, int number)
{
    static const QRegularExpression token(LiteralOrComment().pattern() + QStringLiteral("|[][(){},]"));
    int depth = 0;
    qsizetype begin = bracket + 1;
    for (auto matches = token.globalMatch(code, bracket); matches.hasNext();) {
        const auto match = matches.next();
        const QString text = match.captured();
        depth += QStringLiteral("([{").contains(text) ? 1 : QStringLiteral(")]}").contains(text) ? -1 : 0;
        const bool ends = depth == 0 || (depth == 1 && text == ",");
        if (ends && number-- == 0)
            return code.mid(begin, match.capturedStart() - begin);
        if (depth == 0)
            break;
        if (ends)
            begin = match.capturedEnd();
    }
    return {};
}

QStringList FilesBelow(const QString& folder, const QStringList& patterns)
{
    QStringList files;
    const QDir root(SourcePath(QString()));
    QDirIterator walk(SourcePath(folder), patterns, QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext())
        files.append(root.relativeFilePath(walk.next()));
    files.sort();
    return files;
}

void Note(TextPlaces& places, const QString& file, const QStringList& texts)
{
    for (const QString& text : texts) {
        if (std::any_of(text.begin(), text.end(), [](QChar character) { return character.isLetter(); }))
            places[text].append(file);
    }
}

// One kind of call that shows a text.
struct ShowingCall {
    QString function;
    int argument;
};

void NoteFolder(TextPlaces& places, const QString& folder, const std::vector<ShowingCall>& calls)
{
    for (const QString& file : FilesBelow(folder, {"*.h", "*.cpp"})) {
        const QString code = QString::fromUtf8(ReadFile(SourcePath(file)));
        for (const ShowingCall& call : calls)
            Note(places, file, TextsInCalls(code, {call.function}, call.argument));
    }
    for (const QString& file : FilesBelow(folder, {"*.ui"}))
        Note(places, file, TextsInForm(ReadFile(SourcePath(file))));
}

} // namespace

QStringList TextsInCalls(const QString& code, const QStringList& functions, int argument)
{
    QStringList texts;
    const QString plain = WithoutComments(code);
    const QRegularExpression call(QStringLiteral("\\b(?:%1)\\s*\\(").arg(functions.join('|')));
    for (auto matches = call.globalMatch(plain); matches.hasNext();)
        texts += TextsOf(Argument(plain, matches.next().capturedEnd() - 1, argument));
    return texts;
}

QStringList TextsInForm(const QByteArray& form)
{
    QStringList texts;
    QXmlStreamReader xml(form);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != QLatin1String("string"))
            continue;
        const bool translatable = xml.attributes().value(QLatin1String("notr")) != QLatin1String("true");
        const QString text = xml.readElementText();
        if (translatable && !text.isEmpty())
            texts.append(text);
    }
    return texts;
}

TextPlaces ComponentTexts()
{
    TextPlaces places;
    NoteFolder(places, "component", {{"TranslateMsg", 0}, {"QT_TR_NOOP", 0}, {"RunTimeError", 1}});
    NoteFolder(places, "OrvaneShellLib", {{"RunTimeError", 1}});
    NoteFolder(places, "samples", {{"RunTimeError", 1}});
    NoteFolder(places, "ovctrls", {{"QT_TR_NOOP", 0}}); // shown in the forms of the component
    return places;
}

TextPlaces HostTexts()
{
    TextPlaces places;
    const std::vector<ShowingCall> calls{
        {"tr", 0}, {"QT_TR_NOOP", 0}, {"translate", 1}, {"QT_TRANSLATE_NOOP", 1}};
    NoteFolder(places, "files", calls);
    NoteFolder(places, "hostkit", calls);
    NoteFolder(places, "mapkit", calls);
    NoteFolder(places, "qgis", calls);
    NoteFolder(places, "shell", calls);
    NoteFolder(places, "examples", calls);
    NoteFolder(places, "store", calls);
    return places;
}

} // namespace Orvane::Testing
