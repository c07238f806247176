// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/RunTimeError.h>

#include <QString>

namespace Orvane {

/// Makes the errors of one database file, which name the file.
class StoreErrors
{
public:
    /// path: the file, empty for a database in memory.
    explicit StoreErrors(const QString& path);

    /// english: one of StoreTexts. detail: stands for ^2.
    RunTimeError Error(ErrorNumber number, const char* english, const QString& detail = {}) const;
    /// As Error, with the number DatabaseFailure.
    RunTimeError Failure(const char* english, const QString& detail = {}) const;
    /// The error for a result code of SQLite; message is what SQLite says of it.
    RunTimeError FromSqlite(int resultCode, const char* message) const;

private:
    QString m_name;
};

} // namespace Orvane
