// SPDX-License-Identifier: MIT
#include "ovctrls/EventArguments.h"

#include <QKeyEvent>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

qint16 Typed(int key, const QString& text)
{
    return KeyAsciiOf(QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier, text));
}

TEST(EventArguments, KeysHaveTheirVirtualKeyCodes)
{
    EXPECT_EQ(KeyCodeOf(Qt::Key_A), 65);
    EXPECT_EQ(KeyCodeOf(Qt::Key_9), 57);
    EXPECT_EQ(KeyCodeOf(Qt::Key_Space), 32);
    EXPECT_EQ(KeyCodeOf(Qt::Key_F1), 112);
    EXPECT_EQ(KeyCodeOf(Qt::Key_F24), 135);
    EXPECT_EQ(KeyCodeOf(Qt::Key_Period), 190);
    EXPECT_EQ(KeyCodeOf(Qt::Key_Delete), 46);
}

TEST(EventArguments, BothEnterKeysAreOne)
{
    EXPECT_EQ(KeyCodeOf(Qt::Key_Return), 13);
    EXPECT_EQ(KeyCodeOf(Qt::Key_Enter), 13);
}

TEST(EventArguments, AKeyWithoutACodeIsZero)
{
    EXPECT_EQ(KeyCodeOf(Qt::Key_unknown), 0);
    EXPECT_EQ(KeyCodeOf(Qt::Key_VolumeUp), 0);
}

TEST(EventArguments, ACharacterIsItsCodeUnit)
{
    EXPECT_EQ(Typed(Qt::Key_A, "a"), 97);
    EXPECT_EQ(Typed(Qt::Key_Return, "\r"), 13);
    EXPECT_EQ(Typed(Qt::Key_unknown, QString(QChar(0xFF21))), qint16(0xFF21));
}

TEST(EventArguments, KeysThatTypeNothingHaveNoCharacter)
{
    EXPECT_EQ(Typed(Qt::Key_Left, ""), 0);
    EXPECT_EQ(Typed(Qt::Key_Delete, "\x7f"), 0);
}

TEST(EventArguments, ModifiersAndButtonsAddUp)
{
    EXPECT_EQ(ShiftMaskOf(Qt::NoModifier), 0);
    EXPECT_EQ(ShiftMaskOf(Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier), 7);
    EXPECT_EQ(ShiftMaskOf(Qt::AltModifier), 4);
    EXPECT_EQ(ButtonMaskOf(Qt::LeftButton | Qt::MiddleButton), 5);
    EXPECT_EQ(ButtonMaskOf(Qt::RightButton), 2);
    EXPECT_EQ(ButtonMaskOf(Qt::BackButton), 0);
}

} // namespace

} // namespace Orvane
