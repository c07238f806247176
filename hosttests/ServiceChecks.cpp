// SPDX-License-Identifier: MIT
#include "hosttests/CheckLists.h"
#include "hosttests/CheckRun.h"
#include "hosttests/SampleContents.h"

#include <OrvaneShellLib/IShellServices.h>
#include <OrvaneShellLib/LayerValues.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <cmath>

namespace Orvane::HostTests {

namespace {

constexpr qint32 firstScale = 1;
constexpr qint32 lastScale = 255;

void CheckScaleIndexes(CheckRun& run)
{
    for (qint32 index = firstScale; index <= lastScale; ++index) {
        const double denominator = run.Services().ScaleFromIndex(index);
        run.Expect(
            std::isfinite(denominator) && denominator > 0,
            QStringLiteral("ScaleFromIndex(%1) is %2").arg(index).arg(denominator));
        run.ExpectNumber(
            QStringLiteral("IndexFromScale(ScaleFromIndex(%1))").arg(index),
            run.Services().IndexFromScale(denominator), index);
    }
}

double LeastDistance(const IShellServices& services, double denominator)
{
    double least = std::abs(services.ScaleFromIndex(firstScale) - denominator);
    for (qint32 index = firstScale + 1; index <= lastScale; ++index)
        least = std::fmin(least, std::abs(services.ScaleFromIndex(index) - denominator));
    return least;
}

void CheckNearestScale(CheckRun& run)
{
    const IShellServices& services = run.Services();
    for (const double denominator : {1.0, 123.0, 777.0, 1234.5, 9999.0, 26000.0, 123456.0, 654321.0, 5e6}) {
        const qint32 index = services.IndexFromScale(denominator);
        const QString what = QStringLiteral("IndexFromScale(%1) is %2").arg(denominator, 0, 'f').arg(index);
        if (!run.Expect(
                index >= firstScale && index <= lastScale, what + QStringLiteral(", which is not 1 to 255")))
            continue;
        run.Expect(
            std::abs(services.ScaleFromIndex(index) - denominator) <= LeastDistance(services, denominator),
            what + QStringLiteral(", but another scale is nearer"));
    }
}

void CheckPatterns(CheckRun& run)
{
    for (int number = 0; number <= LastFillStyle; ++number) {
        const MonochromeBitmap bitmap = run.Services().FillPattern(FillPatternKind, number);
        const QString what = QStringLiteral("FillPattern(7, %1)").arg(number);
        run.Expect(bitmap.width > 0 && bitmap.height > 0, what + QStringLiteral(" has no pixels"));
        run.ExpectNumber(
            what + QStringLiteral(", bytes"), bitmap.rows.size(),
            qint64(bitmap.height) * ((bitmap.width + 7) / 8));
    }
}

bool MeansNoLimit(qint32 index)
{
    return index == 0 || index == 256;
}

void ExpectScaleBack(CheckRun& run, qint32 index, double stored)
{
    const qint32 back = run.Client().StoredScaleToDialog(stored);
    run.Expect(
        back == index || (MeansNoLimit(index) && MeansNoLimit(back)),
        QStringLiteral("scale index %1 is stored as %2, which is read as index %3")
            .arg(index)
            .arg(stored, 0, 'g', 17)
            .arg(back));
}

void CheckScales(CheckRun& run)
{
    for (qint32 index = 0; index <= 256; ++index) {
        const double stored = run.Client().DialogScaleToStored(index);
        if (run.Expect(
                std::isfinite(stored), QStringLiteral("DialogScaleToStored(%1) is no number").arg(index)))
            ExpectScaleBack(run, index, stored);
    }
}

void CheckWholeScales(CheckRun& run)
{
    for (qint32 index = 0; index <= 256; ++index) {
        const double stored = RoundHalfToEven(run.Client().DialogScaleToStored(index));
        if (run.Expect(
                std::abs(stored) <= 2147483647.0,
                QStringLiteral("DialogScaleToStored(%1) does not fit into 32 bits").arg(index)))
            ExpectScaleBack(run, index, stored);
    }
}

void CheckAnyScale(CheckRun& run)
{
    for (const double stored : {0.0, 0.25, 1.0, 333.3, 123456.0, 2e9, 1e15, 1e300, -1.0, -1e300}) {
        const qint32 index = run.Client().StoredScaleToDialog(stored);
        run.Expect(
            index >= 0 && index <= 256,
            QStringLiteral("StoredScaleToDialog(%1) is %2").arg(stored, 0, 'g', 17).arg(index));
    }
}

void CheckListColour(CheckRun& run)
{
    if (!HasWindows(run))
        return;
    const qint32 colour = run.Services().ListBackColour();
    run.Expect(
        colour >= 0 && colour <= 0xFFFFFF,
        QStringLiteral("ListBackColour is 0x%1").arg(quint32(colour), 8, 16, QLatin1Char('0')));
}

} // namespace

std::vector<HostCheck> ServiceChecks()
{
    return {
        {"Services",
         "EachScaleComesBack",
         "IShellServices: IndexFromScale is the inverse of ScaleFromIndex for 1 to 255.",
         {},
         NoContents,
         CheckScaleIndexes},
        {"Services",
         "AScaleBetweenTwoIsTheNearest",
         "IShellServices::IndexFromScale: the index from 1 to 255 whose denominator is nearest.",
         {},
         NoContents,
         CheckNearestScale},
        {"Client",
         "EachScaleIndexComesBack",
         "StoredScaleToDialog is the inverse of DialogScaleToStored for 0 to 256; 0 and 256 both mean no "
         "limit.",
         {},
         NoContents,
         CheckScales},
        {"Client",
         "EachScaleIndexComesBackAsAWholeNumber",
         "DialogScaleToStored: rounded to a whole number of 32 bits, as a maximum is stored, it still comes "
         "back as the same index.",
         {},
         NoContents,
         CheckWholeScales},
        {"Client",
         "AnyStoredScaleIsAnIndex",
         "StoredScaleToDialog: 0 to 256 for any number in a scale column.",
         {},
         NoContents,
         CheckAnyScale},
        {"Services",
         "EachFillStyleHasAPattern",
         "IShellServices::FillPattern: for kind 7 and 0 to 31, a bitmap with height rows of (width + 7) / 8 "
         "bytes.",
         {},
         NoContents,
         CheckPatterns},
        {"Services",
         "TheColourOfListsIsAColour",
         "IShellServices::ListBackColour: a BGR integer, red in the low byte, the top byte 0.",
         {},
         NoContents,
         CheckListColour},
    };
}

} // namespace Orvane::HostTests
