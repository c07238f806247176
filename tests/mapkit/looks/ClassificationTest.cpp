// SPDX-License-Identifier: MIT
#include "mapkit/looks/Classification.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numeric>

namespace Orvane {

namespace {

std::vector<double> OneTo(int last)
{
    std::vector<double> numbers(static_cast<size_t>(last));
    std::iota(numbers.begin(), numbers.end(), 1);
    return numbers;
}

int FeaturesIn(const Classification& classes, size_t features, int index)
{
    int count = 0;
    for (size_t i = 0; i < features; ++i)
        count += classes.ClassOf(i) == index;
    return count;
}

} // namespace

TEST(Classification, QuantilesHoldTheSameNumberOfFeatures)
{
    std::vector<double> numbers = OneTo(100);
    numbers.back() = 1e9;
    const Classification classes(numbers, ClassDivision::Quantiles, 5);
    ASSERT_EQ(classes.Count(), 5);
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(FeaturesIn(classes, 100, i), 20) << i;
}

TEST(Classification, EqualStepsAreEquallyWide)
{
    const Classification classes(std::vector<double>{0, 1, 2, 100}, ClassDivision::EqualSteps, 4);
    ASSERT_EQ(classes.Count(), 4);
    for (int i = 0; i < 4; ++i)
        EXPECT_DOUBLE_EQ(classes.UpperLimit(i) - classes.LowerLimit(i), 25) << i;
    EXPECT_EQ(FeaturesIn(classes, 4, 0), 3);
    EXPECT_EQ(classes.ClassOf(3), 3);
}

TEST(Classification, ALimitBelongsToTheClassAboveAndTheLastToTheLast)
{
    const Classification classes(std::vector<double>{0, 10, 20}, ClassDivision::EqualSteps, 2);
    EXPECT_EQ(classes.ClassOf(0), 0);
    EXPECT_EQ(classes.ClassOf(1), 1);
    EXPECT_EQ(classes.ClassOf(2), 1);
}

TEST(Classification, FewDifferentNumbersMakeFewClasses)
{
    const Classification classes(std::vector<double>{7, 7, 7, 9, 9, 9}, ClassDivision::Quantiles, 5);
    EXPECT_EQ(classes.Count(), 2);
    EXPECT_EQ(classes.ClassOf(0), 0);
    EXPECT_EQ(classes.ClassOf(5), 1);
}

TEST(Classification, OneNumberEverywhereIsOneClass)
{
    for (const ClassDivision division : {ClassDivision::Quantiles, ClassDivision::EqualSteps}) {
        const Classification classes(std::vector<double>{4, 4, 4}, division, 5);
        EXPECT_EQ(classes.Count(), 1);
        EXPECT_EQ(classes.ClassOf(2), 0);
        EXPECT_EQ(classes.LowerLimit(0), 4);
        EXPECT_EQ(classes.UpperLimit(0), 4);
    }
}

TEST(Classification, WhatIsNoNumberHasNoClass)
{
    const Classification classes(std::vector<double>{1, NAN, INFINITY, 5}, ClassDivision::EqualSteps, 2);
    EXPECT_EQ(classes.ClassOf(1), Classification::NoClass);
    EXPECT_EQ(classes.ClassOf(2), Classification::NoClass);
    EXPECT_EQ(classes.UpperLimit(1), 5);
}

TEST(Classification, WithoutNumbersThereAreNoClasses)
{
    EXPECT_EQ(Classification({}, ClassDivision::Quantiles, 5).Count(), 0);
    const Classification nothing(std::vector<double>{NAN}, ClassDivision::EqualSteps, 5);
    EXPECT_EQ(nothing.Count(), 0);
    EXPECT_EQ(nothing.ClassOf(0), Classification::NoClass);
}

TEST(Classification, HugeNumbersStillMakeSteps)
{
    const Classification classes(std::vector<double>{-1e308, 0, 1e308}, ClassDivision::EqualSteps, 3);
    EXPECT_EQ(classes.Count(), 3);
    EXPECT_EQ(classes.ClassOf(1), 1);
}

TEST(Classification, TheCountIsKeptWithinItsLimits)
{
    EXPECT_EQ(Classification(OneTo(100), ClassDivision::EqualSteps, 1000).Count(), Classification::MaxCount);
    EXPECT_EQ(Classification(OneTo(100), ClassDivision::EqualSteps, -3).Count(), Classification::MinCount);
}

} // namespace Orvane
