// SPDX-License-Identifier: MIT
#include "shell/command/CommandReader.h"

#include <QCoreApplication>
#include <QTextStream>

namespace Orvane {

namespace {

bool IsHarmless(char32_t character)
{
    constexpr char32_t NonJoiner = 0x200C;
    constexpr char32_t Joiner = 0x200D;
    const QChar::Category category = QChar::category(character);
    const bool breaksLine = category == QChar::Separator_Line || category == QChar::Separator_Paragraph;
    return character == NonJoiner || character == Joiner || (QChar::isPrint(character) && !breaksLine);
}

bool AsksForHelp(const QStringList& arguments)
{
    return arguments.contains(QLatin1String("--help")) || arguments.contains(QLatin1String("-h"));
}

} // namespace

QString TerminalText(const QString& text)
{
    auto characters = text.toUcs4();
    for (auto& character : characters) {
        if (!IsHarmless(char32_t(character)))
            character = U'?';
    }
    return QString::fromUcs4(reinterpret_cast<const char32_t*>(characters.constData()), characters.size());
}

void TellLine(const Terminal& terminal, const QString& text)
{
    terminal.out << TerminalText(text) << '\n';
    terminal.out.flush();
}

void TellError(const Terminal& terminal, const QString& text)
{
    terminal.errors << "orvane: " << TerminalText(text) << '\n';
    terminal.errors.flush();
}

CommandReader::CommandReader(const QString& description)
{
    m_parser.setApplicationDescription(description);
    m_parser.addOption(
        {{QStringLiteral("h"), QStringLiteral("help")},
         QCoreApplication::translate("CommandLine", "List the options.")});
}

void CommandReader::AddCommand(const QString& name)
{
    m_command = name;
    m_parser.addPositionalArgument(name, QString(), name);
}

void CommandReader::RequireWords(qsizetype least, qsizetype most)
{
    m_leastWords = least;
    m_mostWords = most;
}

std::optional<int> CommandReader::Read(const QStringList& arguments, const Terminal& terminal)
{
    const bool isUnderstood = m_parser.parse(arguments);
    if (AsksForHelp(arguments)) { // also where an option lacks its value, as in "--export --help"
        terminal.out << m_parser.helpText();
        terminal.out.flush();
        return ExitCode::Done;
    }
    if (!isUnderstood)
        return Refuse(terminal, m_parser.errorText());
    const qsizetype count = Words().size();
    if (count < m_leastWords)
        return Refuse(terminal, QCoreApplication::translate("CommandLine", "An argument is missing."));
    if (count > m_mostWords)
        return Refuse(terminal, QCoreApplication::translate("CommandLine", "There are too many arguments."));
    return std::nullopt;
}

QStringList CommandReader::Words() const
{
    return m_parser.positionalArguments().mid(m_command.isEmpty() ? 0 : 1);
}

int CommandReader::Refuse(const Terminal& terminal, const QString& mistake) const
{
    const QString command = m_command.isEmpty() ? QString() : m_command + QLatin1Char(' ');
    TellError(terminal, mistake);
    TellError(
        terminal,
        QCoreApplication::translate("CommandLine", "\"orvane %1--help\" lists the options.").arg(command));
    return ExitCode::Usage;
}

} // namespace Orvane
