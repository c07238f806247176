// SPDX-License-Identifier: MIT
#include "shell/output/PageChoices.h"

#include <QSettings>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

class PageChoicesTest : public testing::Test
{
protected:
    PageChoicesTest() { QSettings().clear(); }
    ~PageChoicesTest() override { QSettings().clear(); }
};

} // namespace

TEST_F(PageChoicesTest, AWideA4PageIsTheFirstOffer)
{
    const PageChoices choices = PageChoices::Stored();
    EXPECT_EQ(choices, PageChoices());
    EXPECT_EQ(choices.Millimetres(), QSizeF(297, 210));
}

TEST_F(PageChoicesTest, WhatWasStoredIsOfferedAgain)
{
    const PageChoices choices{"", true, {640, 480}, true, 120, true, false, false, false};
    choices.Store();
    EXPECT_EQ(PageChoices::Stored(), choices);
}

TEST_F(PageChoicesTest, ForeignSettingsCountAsNone)
{
    QSettings settings;
    settings.setValue("Output/Paper", "B52");
    settings.setValue("Output/Resolution", "many");
    settings.setValue("Output/OwnSize", QSizeF(-3, 1e9));
    EXPECT_EQ(PageChoices::Stored(), PageChoices());
}

TEST_F(PageChoicesTest, AnUprightPaperIsHigherThanWide)
{
    PageChoices choices;
    choices.upright = true;
    EXPECT_EQ(choices.Millimetres(), QSizeF(210, 297));
}

TEST_F(PageChoicesTest, PixelsFollowTheResolution)
{
    PageChoices choices;
    choices.resolution = 254;
    EXPECT_EQ(choices.Pixels().toSize(), QSize(2970, 2100));
    choices.paper.clear();
    choices.ownSize = {640, 480};
    EXPECT_EQ(choices.Pixels().toSize(), QSize(640, 480));
    EXPECT_NEAR(choices.Millimetres().width(), 64, 1e-9);
}

} // namespace Orvane
