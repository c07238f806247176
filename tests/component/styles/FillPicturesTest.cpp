// SPDX-License-Identifier: MIT
#include "component/styles/FillPictures.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <gtest/gtest.h>

namespace Orvane::Testing {

namespace {

const MonochromeBitmap dot{1, 1, QByteArray("\x80", 1)};

} // namespace

TEST(FillPictures, KeepThePictureThatWasSet)
{
    FillPictures pictures;
    pictures.Load(31);
    pictures.SetPicture(31, dot);
    EXPECT_EQ(pictures.Picture(31).width, 1);
    EXPECT_EQ(pictures.Picture(31).rows, dot.rows);
}

TEST(FillPictures, LoadingAgainReusesTheElement)
{
    FillPictures pictures;
    pictures.Load(5);
    pictures.SetPicture(5, dot);
    EXPECT_NO_THROW(pictures.Load(5));
    EXPECT_EQ(pictures.Picture(5).width, 1);
}

TEST(FillPictures, AnElementThatIsNotLoadedHasNoPicture)
{
    FillPictures pictures;
    EXPECT_THROW(pictures.SetPicture(5, dot), RunTimeError);
    EXPECT_EQ(pictures.Picture(5).width, 0);
}

TEST(FillPictures, ThereAreElementsFrom0To31)
{
    FillPictures pictures;
    EXPECT_THROW(pictures.Load(-1), RunTimeError);
    EXPECT_THROW(pictures.Load(32), RunTimeError);
    EXPECT_THROW(pictures.SetPicture(32, dot), RunTimeError);
    EXPECT_EQ(pictures.Picture(-1).width, 0);
    EXPECT_EQ(pictures.Picture(32).width, 0);
}

} // namespace Orvane::Testing
