// SPDX-License-Identifier: MIT
#pragma once

#include <QCommandLineParser>
#include <QStringList>

#include <optional>

class QTextStream;

namespace Orvane {

/// How a command of the command line ends.
namespace ExitCode {

inline constexpr int Done = 0;
inline constexpr int Problems = 1; ///< something could not be done, or is wrong
inline constexpr int Usage = 2; ///< the command line was not understood

} // namespace ExitCode

/// Where a command writes: results and errors. Neither is owned.
struct Terminal {
    QTextStream& out;
    QTextStream& errors;
};

/// text as it may be written to a terminal: "?" for each character that a terminal obeys or that changes the
/// order or the place of others. Joiners, which some scripts need, stay.
QString TerminalText(const QString& text);

/// Writes a line of results, as TerminalText has it.
void TellLine(const Terminal& terminal, const QString& text);

/// Writes "orvane: ..." to the errors, as TerminalText has it.
void TellError(const Terminal& terminal, const QString& text);

/// Reads the arguments of one command; adds --help.
///
///     CommandReader reader(tr("Check a map file."));
///     reader.AddCommand(QStringLiteral("check"));
///     reader.Options().addOption(repair);
///     if (const auto ended = reader.Read(arguments, terminal))
///         return *ended;
class CommandReader
{
public:
    explicit CommandReader(const QString& description);

    QCommandLineParser& Options() { return m_parser; }
    /// The word that comes before all others, for the help text.
    void AddCommand(const QString& name);
    /// Sets how many words there must be besides the options and the command.
    void RequireWords(qsizetype least, qsizetype most);

    /// arguments: the program's own name first. Returns the exit code when the command ends here: after
    /// --help, and after a mistake, which it reports.
    std::optional<int> Read(const QStringList& arguments, const Terminal& terminal);

    /// The words besides the options, without the command's name.
    QStringList Words() const;
    bool IsSet(const QCommandLineOption& option) const { return m_parser.isSet(option); }
    QString Value(const QCommandLineOption& option) const { return m_parser.value(option); }
    /// Of an option that may be given several times.
    QStringList Values(const QCommandLineOption& option) const { return m_parser.values(option); }

    /// Reports a mistake in the arguments; returns ExitCode::Usage.
    int Refuse(const Terminal& terminal, const QString& mistake) const;

private:
    QCommandLineParser m_parser;
    QString m_command;
    qsizetype m_leastWords = 0;
    qsizetype m_mostWords = 1;
};

} // namespace Orvane
