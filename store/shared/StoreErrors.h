// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/RunTimeError.h>

#include <QString>

namespace Orvane {

/// Creates the errors of one store; they name the store.
class StoreErrors
{
public:
    /// The name of a store that is not a file, as the user reads it.
    struct Named {
        QString name;
    };

    /// path: the file, empty for a database in memory.
    explicit StoreErrors(const QString& path);
    explicit StoreErrors(const Named& store) : m_name(store.name) { }

    /// english: one of StoreTexts. detail: replaces ^2.
    RunTimeError Error(ErrorNumber number, const char* english, const QString& detail = {}) const;
    /// As Error, with the number DatabaseFailure.
    RunTimeError Failure(const char* english, const QString& detail = {}) const;

private:
    QString m_name;
};

} // namespace Orvane
