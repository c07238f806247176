// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/ForwardingDatabase.h>
#include <OrvaneShellLib/RunTimeError.h>

#include <memory>
#include <string>

namespace Orvane::Testing {

/// One planned failure: the nth call of a member raises, instead of being passed on.
class PlannedFailure
{
public:
    /// member: "Update", "OpenRecordset", "LayerChanged" ...; the cursors of a database count together.
    /// call: counted from 1.
    PlannedFailure(std::string member, int call, RunTimeError error)
        : m_member(std::move(member)), m_callsToGo(call), m_error(std::move(error))
    {
    }

    /// The nth call raises, whichever member it is of.
    static PlannedFailure InAnyMember(int call, RunTimeError error)
    {
        return {std::string(), call, std::move(error)};
    }

    /// Counts the call, and raises the error when it is the planned one.
    void Called(const char* member)
    {
        if ((!m_member.empty() && m_member != member) || --m_callsToGo != 0)
            return;
        m_failedMember = member;
        throw m_error;
    }

    /// True once it has raised.
    bool HasCome() const { return !m_failedMember.empty(); }
    /// The member that has raised; empty before that.
    const std::string& FailedMember() const { return m_failedMember; }

private:
    std::string m_member;
    int m_callsToGo;
    RunTimeError m_error;
    std::string m_failedMember;
};

/// Passes everything on to another database and raises as planned, in its own members and in those of its
/// cursors that do more than query.
class FailingDatabase : public ForwardingDatabase
{
public:
    /// Neither is owned; both outlive this object and its cursors.
    FailingDatabase(ILayerDatabase& database, PlannedFailure& failure)
        : ForwardingDatabase(database), m_failure(failure)
    {
    }

protected:
    std::unique_ptr<IRecordset> ILayerDatabase_OpenRecordset(const QString& source) override;
    void ILayerDatabase_BeginTrans() override;
    void ILayerDatabase_CommitTrans() override;
    void ILayerDatabase_Rollback() override;

private:
    PlannedFailure& m_failure;
};

/// Passes everything on to the cursor and raises as planned.
std::unique_ptr<IRecordset> FailInCursor(std::unique_ptr<IRecordset> cursor, PlannedFailure& failure);

} // namespace Orvane::Testing
