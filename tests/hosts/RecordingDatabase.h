// SPDX-License-Identifier: MIT
#pragma once

#include "hosts/CallLog.h"

#include <OrvaneShellLib/ForwardingDatabase.h>

namespace Orvane::Testing {

/// Passes everything on and writes it into a log, including the calls of its cursors.
class RecordingDatabase : public ForwardingDatabase
{
public:
    /// Neither is owned; both outlive this object and its cursors.
    RecordingDatabase(ILayerDatabase& database, CallLog& log) : ForwardingDatabase(database), m_log(log) { }

protected:
    std::unique_ptr<IRecordset> ILayerDatabase_OpenRecordset(const QString& source) override;
    void ILayerDatabase_BeginTrans() override;
    void ILayerDatabase_CommitTrans() override;
    void ILayerDatabase_Rollback() override;

private:
    CallLog& m_log;
};

/// Passes everything on to the cursor and writes it into a log, under CallKind::Database, and Field under
/// CallKind::Read; moves and queries of the position are left out.
std::unique_ptr<IRecordset> RecordCursor(std::unique_ptr<IRecordset> cursor, CallLog& log);

} // namespace Orvane::Testing
