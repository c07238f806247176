// SPDX-License-Identifier: MIT
// Threads that use the same raster.
#include "mapkit/DataFolder.h"
#include "mapkit/common/Progress.h"
#include "mapkit/data/RasterSource.h"
#include "mapkit/files/ReadingBound.h"

#include <QSemaphore>

#include <gdal_priv.h>
#include <gtest/gtest.h>
#include <thread>

namespace Orvane {

using namespace Testing;

namespace {

constexpr int LongestHold = 20000; // milliseconds; if nobody lets it go on

std::atomic<bool> isHeld = false; // reading pixels waits
QSemaphore reached;
QSemaphore goOn;

// Makes no pixels, but takes as long as the test wants.
CPLErr HoldPixels(void**, int, void*, int, int, GDALDataType, GDALDataType, int, int)
{
    if (isHeld.exchange(false)) {
        reached.release();
        goOn.tryAcquire(1, LongestHold);
    }
    return CE_None;
}

} // namespace

TEST(RasterTurns, AskingForValuesCanBeCancelledWhileTheRasterIsDrawn)
{
    GDALAllRegister();
    GDALAddDerivedBandPixelFunc("hold", HoldPixels);
    const DataFolder folder;
    const RasterSource raster(folder.Write(
        "slow.vrt",
        R"(<VRTDataset rasterXSize="10" rasterYSize="10"><GeoTransform>0,1,0,10,0,-1</GeoTransform>)"
        R"(<VRTRasterBand dataType="Byte" band="1" subClass="VRTDerivedRasterBand">)"
        R"(<PixelFunctionType>hold</PixelFunctionType></VRTRasterBand></VRTDataset>)"));
    const std::atomic<bool> never = false;
    std::atomic<bool> isDrawn = false;
    isHeld = true;
    std::thread drawing([&] {
        raster.Draw({}, {0, 0, 10, 10}, {10, 10}, never);
        isDrawn = true;
    });
    EXPECT_TRUE(reached.tryAcquire(1, LongestHold));
    const std::atomic<bool> cancelled = true;
    {
        const ReadingBound untilCancelled(cancelled);
        EXPECT_THROW(raster.ValuesAt({}, {5, 5}), Cancelled);
    }
    EXPECT_FALSE(isDrawn) << "it was cancelled only after the drawing";
    goOn.release();
    drawing.join();
}

} // namespace Orvane
