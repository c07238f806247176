// SPDX-License-Identifier: MIT
#pragma once

#include "hosts/ForwardingStore.h"

namespace Orvane::Testing {

/// Counts the statements for whose answer the caller waits: each costs a way to the server and back, if there
/// is one. What is only sent does not count.
class AnswerCount final : public ForwardingStore
{
public:
    using ForwardingStore::ForwardingStore;

    /// How many answers the act waits for.
    int Of(const std::function<void()>& act)
    {
        m_answers = 0;
        act();
        return m_answers;
    }

    qint64 Execute(const QString& sql, const std::vector<Value>& values = {}) override
    {
        ++m_answers;
        return ForwardingStore::Execute(sql, values);
    }
    std::unique_ptr<IRecordset> OpenQuery(const QString& sql, const std::vector<Value>& values = {}) override
    {
        ++m_answers;
        return ForwardingStore::OpenQuery(sql, values);
    }

private:
    std::unique_ptr<IRecordset> ILayerDatabase_OpenRecordset(const QString& source) override
    {
        ++m_answers;
        return ForwardingStore::ILayerDatabase_OpenRecordset(source);
    }

    int m_answers = 0;
};

} // namespace Orvane::Testing
