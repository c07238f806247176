// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/hostkit/tracing/TraceText.h>

#include <QString>
#include <QStringList>

#include <exception>
#include <type_traits>
#include <utility>

class QIODevice;

namespace Orvane {

/// Writes a call trace, one line per call, in the order of the calls:
///
///     editor.Visible(true)
///     client.ReadSetting("DrawStyleEditor::Main") -> "9000:7000:LAYERS:EXPANDED"
///     database.OpenRecordset("SELECT Layers.* FROM Layers WHERE Code > -2 ORDER BY Name")
///     recordset.Seek("=", 17) -> found
///     client.LoadScheme("Night") -> error 3002 "The layer database is locked."
///
/// A call without a result is written before it is made, so that the calls it leads to follow it; a call with
/// a result is written together with that result. An error has a line of its own, and is passed on unchanged.
class CallTrace
{
public:
    /// device: open for writing; not owned; outlives this object. Lines are UTF-8 and end in a line feed.
    explicit CallTrace(QIODevice& device) : m_device(device) { }
    Q_DISABLE_COPY_MOVE(CallTrace)

    /// Writes the call, makes it, and returns what it returns. member: as in "client.ShowEditor".
    template <typename Action, typename... Arguments>
    auto Command(const char* member, Action&& action, const Arguments&... arguments) -> decltype(action())
    {
        const QString call = Call(member, {TraceText::Of(arguments)...});
        Write(call);
        return Watched(call, std::forward<Action>(action));
    }

    /// Makes the call, writes it with its result, and returns the result.
    template <typename Action, typename... Arguments>
    auto Question(const char* member, Action&& action, const Arguments&... arguments) -> decltype(action())
    {
        const QString call = Call(member, {TraceText::Of(arguments)...});
        auto result = Watched(call, std::forward<Action>(action));
        Write(call + Arrow() + TraceText::Of(result));
        return result;
    }

    /// Writes one line as it is.
    void Write(const QString& line);

private:
    static QString Call(const char* member, const QStringList& arguments);
    static QString Arrow() { return QStringLiteral(" -> "); }
    void WriteError(const QString& call, const std::exception& error);

    template <typename Action> auto Watched(const QString& call, Action&& action) -> decltype(action())
    {
        try {
            return action();
        } catch (const std::exception& error) {
            WriteError(call, error);
            throw;
        }
    }

    QIODevice& m_device;
};

} // namespace Orvane
