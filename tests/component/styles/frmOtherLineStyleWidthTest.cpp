// SPDX-License-Identifier: MIT
#include "component/styles/frmOtherLineStyleFixture.h"

#include <QLabel>

namespace Orvane::Testing {

TEST_F(frmOtherLineStyleTest, MillimetresArePositive)
{
    EXPECT_TRUE(Choose([this] {
        Type("7");
        Click(Ok());
    }));
    EXPECT_EQ(thickness, 7);
}

TEST_F(frmOtherLineStyleTest, PixelsAreNegative)
{
    EXPECT_TRUE(Choose([this] {
        Click(Pixels());
        Type("3");
        Click(Ok());
    }));
    EXPECT_EQ(thickness, -3);
}

TEST_F(frmOtherLineStyleTest, HalvesGoToTheEvenNeighbour)
{
    Choose([this] {
        Type("2.5");
        Click(Ok());
    });
    EXPECT_EQ(thickness, 2);
    Choose([this] {
        Click(Pixels());
        Type("3.5");
        Click(Ok());
    });
    EXPECT_EQ(thickness, -4);
}

TEST_F(frmOtherLineStyleTest, SaysWhatWillBeStoredForAWidthThatIsNotWhole)
{
    const auto told = [this] { return form->findChild<QLabel*>("lblStored")->text(); };
    Choose([&] {
        Type("2.4");
        EXPECT_EQ(told(), "2 mm will be stored.");
        QTest::mouseClick(&Pixels(), Qt::LeftButton);
        EXPECT_EQ(told(), "2 pixels will be stored.");
        Type("0.3");
        EXPECT_EQ(told(), "The thinnest line will be stored.");
        Type("3");
        EXPECT_EQ(told(), "");
    });
}

TEST_F(frmOtherLineStyleTest, AWidthAboveTheMaximumBecomesTheMaximum)
{
    Choose([this] {
        Type("250");
        EXPECT_EQ(Width().text(), "100");
        EXPECT_EQ(Spin().Value(), 100);
        Click(Cancel());
    });
}

TEST_F(frmOtherLineStyleTest, ANegativeWidthBecomes0)
{
    Choose([this] {
        Type("-3");
        EXPECT_EQ(Width().text(), "0");
        Click(Cancel());
    });
}

TEST_F(frmOtherLineStyleTest, TheSpinFollowsTheText)
{
    Choose([this] {
        Type("12.5");
        EXPECT_EQ(Spin().Value(), 12.5f);
        Click(Cancel());
    });
}

TEST_F(frmOtherLineStyleTest, TheTextFollowsTheSpin)
{
    Choose([this] {
        Type("2.5");
        Click(*Spin().findChild<QToolButton*>("cmdUp"));
        EXPECT_EQ(Width().text(), "3.5");
        QTest::keyClick(&Width(), Qt::Key_Down);
        EXPECT_EQ(Width().text(), "2.5");
        EXPECT_TRUE(Ok().isEnabled());
        Click(Cancel());
    });
}

TEST_F(frmOtherLineStyleTest, ATextThatIsNoNumberStaysAsTyped)
{
    Choose([this] {
        Type("5");
        Type("abc");
        EXPECT_EQ(Width().text(), "abc");
        EXPECT_EQ(Spin().Value(), 5);
        EXPECT_TRUE(Ok().isEnabled());
        Click(Cancel());
    });
}

TEST_F(frmOtherLineStyleTest, OkOnATextThatIsNoNumberRaisesATypeMismatch)
{
    thickness = 5;
    try {
        Choose([this] {
            Type("abc");
            Click(Ok());
            EXPECT_FALSE(form->isVisible());
        });
        FAIL() << "nothing was raised";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), int(ErrorNumber::TypeMismatch));
        EXPECT_EQ(error.Description(), "'abc' is not a number.");
    }
    EXPECT_EQ(thickness, 5);
    EXPECT_FALSE(Choose([this] { Click(Cancel()); })) << "it can be opened again";
}

TEST_F(frmOtherLineStyleTest, AWidthBeyond16BitsOverflows)
{
    thickness = 5;
    Spin().setMaxValue(1e6F);
    EXPECT_THROW(
        Choose([this] {
            Type("40000");
            Click(Ok());
        }),
        RunTimeError);
    EXPECT_EQ(thickness, 5);
}

TEST_F(frmOtherLineStyleTest, ZeroIsTheThinnestLineInBothUnits)
{
    for (const qint16 before : {qint16(-4), qint16(5)}) {
        thickness = before;
        EXPECT_TRUE(Choose([this] {
            Type("0");
            Click(Ok());
        }));
        EXPECT_EQ(thickness, 0) << before;
    }
}

TEST_F(frmOtherLineStyleTest, AClickOnTheChosenUnitEnablesOkToo)
{
    Choose([this] {
        EXPECT_FALSE(Ok().isEnabled());
        Click(Millimetres());
        EXPECT_TRUE(Ok().isEnabled());
        Click(Cancel());
    });
}

TEST_F(frmOtherLineStyleTest, ACancelBeforeIsForgottenWhenItOpensAgain)
{
    EXPECT_FALSE(Choose([this] { Click(Cancel()); }));
    host.Shell().OnShowModal = [](QWidget*) {};
    EXPECT_TRUE(form->ChooseLineWidth(thickness, x, y));
}

TEST_F(frmOtherLineStyleTest, TheDecimalSeparatorOfTheUserIsUnderstood)
{
    QLocale::setDefault(QLocale(QLocale::German));
    Choose([this] {
        Type("12,5");
        EXPECT_EQ(Width().text(), "12.5");
        Click(Cancel());
    });
    QLocale::setDefault(QLocale::c());
}

} // namespace Orvane::Testing
