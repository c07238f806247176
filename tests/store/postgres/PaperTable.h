// SPDX-License-Identifier: MIT
#pragma once

#include "store/postgres/RowsAhead.h"

#include <map>
#include <vector>

namespace Orvane::Testing {

/// A table without a server: keys with a value each.
class PaperTable final : public ITableRows
{
public:
    using Contents = std::map<qint32, int>;

    /// A row as everybody has it.
    void Set(qint32 key, int value) { m_contents[key] = m_sent[key] = value; }
    void Remove(qint32 key);
    /// A row as only the reader has it, until somebody needs what was written.
    void Write(qint32 key, int value) { m_contents[key] = value; }
    /// From now on everybody has it, and what was read before may be different.
    void ChangeState();
    const Contents& Now() const { return m_contents; }

    ServerRows Rows(const std::vector<qint32>& keys, Written written) override;
    ServerRows RowsFrom(qint32 key, int count, Written written) override;
    quint64 State() override { return m_state; }
    bool MayKeep() const override { return mayKeep; }

    bool mayKeep = true;
    int reads = 0; ///< so far
    size_t rowsRead = 0; ///< so far

private:
    void Send(Written written);
    ServerRows Answer(const Contents& found);

    Contents m_contents;
    Contents m_sent; // as the server has them
    quint64 m_state = 1;
};

} // namespace Orvane::Testing
