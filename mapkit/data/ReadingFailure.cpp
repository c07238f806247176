// SPDX-License-Identifier: MIT
#include "mapkit/data/ReadingFailure.h"

#include "mapkit/common/Progress.h"
#include "mapkit/data/DataSource.h"
#include "mapkit/files/ReadingBound.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace Orvane {

ReadingGivenUp::ReadingGivenUp(const QString& subject)
    : RunTimeError(
        SourceUnreadable,
        QCoreApplication::translate("DataSource", "Reading \"%1\" was given up because it does not end.")
            .arg(QFileInfo(subject).fileName()))
{
}

QString WhyReadingFailed(const QString& reason)
{
    if (ReadingBound::IsCancelledHere())
        throw Cancelled();
    return ReadingBound::IsOverHere() ? QCoreApplication::translate("DataSource", "it takes too long")
                                      : reason;
}

void FailReading(const QString& path, const QString& reason)
{
    const QString why = WhyReadingFailed(reason);
    const QString name = QFileInfo(path).fileName();
    const QString known = QCoreApplication::translate("DataSource", "\"%1\" cannot be read: %2.");
    const QString unknown = QCoreApplication::translate("DataSource", "\"%1\" contains no readable data.");
    throw RunTimeError(SourceUnreadable, why.isEmpty() ? unknown.arg(name) : known.arg(name, why));
}

void FailTooLarge(const QString& path)
{
    FailReading(
        path, QCoreApplication::translate("DataSource", "it is too large for this computer's memory"));
}

void RequireReadingInTime(const QString& path)
{
    if (ReadingBound::IsOverHere())
        FailReading(path, {});
}

} // namespace Orvane
