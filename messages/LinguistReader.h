// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace Orvane {

/// One message of a Qt Linguist document.
struct LinguistEntry {
    QString context;
    QString source; ///< the English text
    QString translation; ///< empty when there is none
    QString type; ///< "unfinished", "vanished", "obsolete"; empty for a finished entry
    bool plural = false; ///< has plural forms; translation is then empty

    /// True when the translation may be shown.
    bool IsFinished() const
    {
        return type.isEmpty() && !plural && !source.isEmpty() && !translation.isEmpty();
    }
};

using LinguistEntries = std::vector<LinguistEntry>;

/// Returns the messages of a Qt Linguist document (.ts) in document order. Returns nothing if the document is
/// not well-formed throughout or is of another kind. Never raises.
std::optional<LinguistEntries> ReadLinguistDocument(const QByteArray& document);

} // namespace Orvane
