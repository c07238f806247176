// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHash>

#include <list>
#include <optional>

namespace Orvane {

/// The names under which a server keeps prepared statements. Only the statements used last are kept.
class StatementNames
{
public:
    /// What to do before a statement runs.
    struct Use {
        QByteArray name; ///< run the statement under this name
        bool isNew = false; ///< prepare it first
        QByteArray dropped; ///< forget the statement of this name; empty for none
    };

    /// The name for a text. A new one counts as prepared; call Forget if that fails.
    Use For(const QByteArray& text);
    /// The server has no statement for this text.
    void Forget(const QByteArray& text);
    /// The server has no statements at all.
    void ForgetAll();

private:
    struct Entry {
        QByteArray text;
        QByteArray name;
    };

    std::list<Entry> m_entries; // the one used last comes first
    QHash<QByteArray, std::list<Entry>::iterator> m_places;
    quint64 m_made = 0;
};

} // namespace Orvane
