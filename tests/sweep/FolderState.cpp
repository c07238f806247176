// SPDX-License-Identifier: MIT
#include "sweep/FolderState.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>

#include <algorithm>
#include <set>
#include <sqlite3.h>
#include <string_view>
#include <vector>

namespace Orvane::Testing {

namespace {

using Lines = std::vector<std::string>;

constexpr size_t MostDifferences = 6;

/// A map as SQLite alone reads it.
class PlainReader
{
public:
    explicit PlainReader(const QString& path) { sqlite3_open(path.toUtf8().constData(), &m_handle); }
    ~PlainReader() { sqlite3_close(m_handle); }
    PlainReader(const PlainReader&) = delete;
    PlainReader& operator=(const PlainReader&) = delete;

    /// A line for each row; or for the error.
    Lines Rows(const std::string& sql) const
    {
        Lines rows;
        sqlite3_stmt* statement = nullptr;
        int result = sqlite3_prepare_v2(m_handle, sql.c_str(), -1, &statement, nullptr);
        while (result == SQLITE_OK || result == SQLITE_ROW) {
            result = sqlite3_step(statement);
            if (result == SQLITE_ROW)
                rows.push_back(Row(statement));
        }
        if (result != SQLITE_DONE)
            rows.push_back(std::string("error: ") + sqlite3_errmsg(m_handle));
        sqlite3_finalize(statement);
        return rows;
    }

private:
    // The time at which something was saved differs from run to run.
    static std::string Row(sqlite3_stmt* statement)
    {
        std::string row;
        for (int column = 0; column < sqlite3_column_count(statement); ++column) {
            if (std::string_view(sqlite3_column_name(statement, column)) == "SavedAt") {
                row += sqlite3_column_type(statement, column) == SQLITE_NULL ? "NULL|" : "a time|";
                continue;
            }
            const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
            row += text ? text : "NULL";
            row += '|';
        }
        return row;
    }

    sqlite3* m_handle = nullptr;
};

void AddPrefixed(Lines& lines, const std::string& prefix, const Lines& added)
{
    lines.reserve(lines.size() + added.size());
    for (const std::string& line : added)
        lines.push_back(prefix + line);
}

Lines LinesOfMap(const QString& path, const std::string& name)
{
    const PlainReader map(path);
    const std::string other
        = " FROM sqlite_master WHERE tbl_name <> '" + std::string(TableOfLaterEdits) + "'";
    Lines lines;
    AddPrefixed(lines, name + " integrity ", map.Rows("PRAGMA integrity_check"));
    AddPrefixed(lines, name + " version ", map.Rows("PRAGMA user_version"));
    AddPrefixed(lines, name + " schema ", map.Rows("SELECT type, name, sql" + other));
    for (std::string table : map.Rows("SELECT name" + other + " AND type = 'table'")) {
        table.pop_back();
        AddPrefixed(lines, name + ' ' + table + ' ', map.Rows("SELECT * FROM \"" + table + '"'));
    }
    return lines;
}

std::string LineOfFile(const QString& path, const std::string& name)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return name + " cannot be read";
    const QByteArray content = file.readAll();
    if (content.startsWith("%PDF"))
        return name + (content.trimmed().endsWith("%%EOF") ? " is a whole page" : " is a cut page");
    const QByteArray digest = QCryptographicHash::hash(content, QCryptographicHash::Md5).toHex();
    return name + ' ' + std::to_string(content.size()) + " bytes " + digest.toStdString();
}

bool IsMap(const QString& name)
{
    return name.endsWith(QLatin1String(".orvane"));
}

// What belongs to a map is read with it; without the map it is a stray file.
bool IsPartOfAMap(const QString& name, const QStringList& names)
{
    for (const char* suffix : {"-wal", "-shm", "-journal"}) {
        const QLatin1String end(suffix);
        if (name.endsWith(end) && names.contains(name.chopped(end.size())))
            return true;
    }
    return false;
}

std::set<std::string> LinesOf(const std::string& state)
{
    std::set<std::string> lines;
    size_t begin = 0;
    for (size_t end = state.find('\n'); end != std::string::npos; end = state.find('\n', begin)) {
        lines.insert(state.substr(begin, end - begin));
        begin = end + 1;
    }
    return lines;
}

void AddDifferences(
    std::string& text, const char* mark, const std::set<std::string>& of, const std::set<std::string>& from)
{
    size_t count = 0;
    for (const std::string& line : of) {
        if (!from.count(line) && count++ < MostDifferences)
            text += "      " + (mark + line.substr(0, 160)) + '\n';
    }
}

} // namespace

// SQLite removes its extra files when a map is closed, so the files are listed before any is opened.
std::string FolderState(const QString& folder)
{
    Lines lines;
    const QDir dir(folder);
    const QStringList names = dir.entryList(QDir::Files | QDir::Hidden);
    for (const QString& name : names) {
        if (IsMap(name))
            AddPrefixed(lines, {}, LinesOfMap(dir.filePath(name), name.toStdString()));
        else if (!IsPartOfAMap(name, names))
            lines.push_back(LineOfFile(dir.filePath(name), name.toStdString()));
    }
    std::sort(lines.begin(), lines.end());
    std::string state;
    for (const std::string& line : lines)
        state += line + '\n';
    return state;
}

int CountLaterEdits(const QString& map)
{
    const Lines rows = PlainReader(map).Rows(std::string("SELECT count(*) FROM ") + TableOfLaterEdits);
    try {
        return rows.size() == 1 ? std::stoi(rows.front()) : -1;
    } catch (const std::exception&) { // it says why there is no number
        return -1;
    }
}

std::string StateDifferences(const std::string& expected, const std::string& found)
{
    std::string text;
    AddDifferences(text, "- ", LinesOf(expected), LinesOf(found));
    AddDifferences(text, "+ ", LinesOf(found), LinesOf(expected));
    return text;
}

} // namespace Orvane::Testing
