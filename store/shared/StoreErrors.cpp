// SPDX-License-Identifier: MIT
#include "store/shared/StoreErrors.h"

#include <QCoreApplication>
#include <QDir>

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
    : StoreErrors(Named{path.isEmpty() ? QStringLiteral(":memory:") : QDir::toNativeSeparators(path)})
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

} // namespace Orvane
