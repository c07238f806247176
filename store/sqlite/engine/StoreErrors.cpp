// SPDX-License-Identifier: MIT
#include "store/sqlite/engine/StoreErrors.h"

#include "store/StoreTexts.h"

#include <QCoreApplication>
#include <QDir>

#include <sqlite3.h>

namespace Orvane {

namespace {

// One pass, so that a "^2" inside the file's name stays as it is.
QString Filled(const QString& text, const QString& name, const QString& detail)
{
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QStringView mark = QStringView(text).mid(i, 2);
        if (mark == u"^1" || mark == u"^2") {
            result += mark == u"^1" ? name : detail;
            ++i;
        } else {
            result += text.at(i);
        }
    }
    return result;
}

} // namespace

StoreErrors::StoreErrors(const QString& path)
    : m_name(path.isEmpty() ? QStringLiteral(":memory:") : QDir::toNativeSeparators(path))
{
}

RunTimeError StoreErrors::Error(ErrorNumber number, const char* english, const QString& detail) const
{
    const QString text = QCoreApplication::translate("LayerStore", english);
    return RunTimeError(number, Filled(text, m_name, detail), QStringLiteral("LayerStore"));
}

RunTimeError StoreErrors::Failure(const char* english, const QString& detail) const
{
    return Error(ErrorNumber::DatabaseFailure, english, detail);
}

RunTimeError StoreErrors::FromSqlite(int resultCode, const char* message) const
{
    switch (resultCode & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return Error(ErrorNumber::DatabaseLocked, StoreTexts::Locked);
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        return Error(ErrorNumber::NotALayerDatabase, StoreTexts::Damaged);
    case SQLITE_READONLY:
        return Error(ErrorNumber::DatabaseReadOnly, StoreTexts::ReadOnly);
    case SQLITE_INTERRUPT: // by TimeBound; the connection knows when the user cancelled
        return Failure(StoreTexts::TooLong);
    case SQLITE_FULL:
        return Failure(StoreTexts::DiskFull);
    case SQLITE_CANTOPEN:
        return Failure(StoreTexts::CannotOpen, QString::fromUtf8(message));
    default:
        return Failure(StoreTexts::Refused, QString::fromUtf8(message));
    }
}

} // namespace Orvane
