// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/Value.h>

#include <QString>
#include <QStringList>

#include <vector>

namespace Orvane::Testing {

/// The interface whose member was called.
enum class CallKind {
    Client, ///< IStyleEditorClient
    Shell, ///< IShellServices
    Database, ///< ILayerDatabase, and all calls of cursors except Field
    Read, ///< IRecordset::Field
};

/// The calls that a host received, in their order, as texts: "WriteSetting(DrawStyleEditor::Main,
/// 9000:7000)". Forms and cursors are left out of the arguments.
class CallLog
{
public:
    /// arguments: joined with ", "; Null and Empty show as words.
    void Add(CallKind kind, const char* member, const std::vector<Value>& arguments = {});
    void Clear() { m_calls.clear(); }

    /// The texts of one kind.
    QStringList Of(CallKind kind) const;
    /// The texts of all kinds but Read.
    QStringList Trace() const;
    /// The texts of all kinds that call that member, e.g. "Update".
    QStringList CallsTo(const QString& member) const;
    /// The value last given to SetField for that column, with its kind unchanged; Empty when there is none.
    Value LastWritten(const QString& columnName) const;

private:
    struct Call {
        CallKind kind;
        QString text;
        std::vector<Value> arguments;
    };

    std::vector<Call> m_calls;
};

} // namespace Orvane::Testing
