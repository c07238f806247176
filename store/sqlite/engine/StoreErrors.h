// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/RunTimeError.h>

#include <QString>

namespace Orvane {

/// Creates the errors of one database file; they name the file.
class StoreErrors
{
public:
    /// path: the file, empty for a database in memory.
    explicit StoreErrors(const QString& path);

    /// english: one of StoreTexts. detail: replaces ^2.
    RunTimeError Error(ErrorNumber number, const char* english, const QString& detail = {}) const;
    /// As Error, with the number DatabaseFailure.
    RunTimeError Failure(const char* english, const QString& detail = {}) const;
    /// The error for a result code of SQLite; message is SQLite's message for it.
    RunTimeError FromSqlite(int resultCode, const char* message) const;

private:
    QString m_name;
};

} // namespace Orvane
