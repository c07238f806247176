// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/OrvaneShellLib/IConflictQuestion.h>
#include <orvane/OrvaneShellLib/IStyleEditorClient.h>
#include <orvane/OrvaneShellLib/MonochromeBitmap.h>
#include <orvane/OrvaneShellLib/Value.h>

#include <QString>
#include <QStringList>

#include <string_view>
#include <vector>

namespace Orvane {

/// A word that is written to a trace as it is, without quotes: "form", "nothing".
struct TraceWord {
    const char* word; ///< not owned
};

/// How the arguments and results of calls are written in a trace. Texts are quoted, with quotes, backslashes
/// and control characters escaped, so that a call is always one line; numbers are plain decimal, whatever the
/// user's locale.
namespace TraceText {

/// The value as described above.
QString Of(TraceWord word);
QString Of(const QString& text);
QString Of(std::string_view text);
QString Of(bool flag);
QString Of(qint16 number);
QString Of(qint32 number);
QString Of(double number);
/// True, False, Null, Empty, a number, or a quoted text.
QString Of(const Value& value);
/// ["Day", "Night"]
QString Of(const QStringList& texts);
/// text or integer
QString Of(EntryKind kind);
/// The quoted text, or cancelled.
QString Of(const PromptAnswer& answer);
/// ["Priority" "17" "9" 1]: property, the user's value, the stored one, layers
QString Of(const std::vector<ConflictingEdit>& edits);
/// overwrite, keep stored or cancel
QString Of(ConflictChoice choice);
/// [1 "Hachured", 2 "Shaded"]
QString Of(const std::vector<RendererStyle>& styles);
/// [1, 2]
QString Of(const std::vector<qint32>& layerIDs);
/// bitmap 8x8
QString Of(const MonochromeBitmap& bitmap);
/// Deleted: a literal would silently become a boolean.
QString Of(const char*) = delete;

} // namespace TraceText

} // namespace Orvane
