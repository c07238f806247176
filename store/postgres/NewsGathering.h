// SPDX-License-Identifier: MIT
#pragma once

#include "store/IChangeNews.h"

#include <QByteArray>
#include <QtGlobal>

#include <string_view>

namespace Orvane {

/// Gathers news of a map until they are told, whether they came as notices or were read from the table; see
/// NoteFunction. Anybody can send notices: whatever is not as it should be stands for everything.
class NewsGathering
{
public:
    /// Adds a notice "<id> <table> <ids>". Returns the id, 0 if it has none.
    qint64 AddNotice(const QByteArray& payload);
    /// Adds what the table has in its columns tab and ids.
    void Add(std::string_view table, std::string_view ids);
    void AddAll() { m_change.all = true; }

    bool IsEmpty() const { return !m_change.all && m_change.layerIDs.isEmpty(); }
    /// What was gathered since the last call.
    ForeignChange Take();

private:
    ForeignChange m_change;
};

} // namespace Orvane
