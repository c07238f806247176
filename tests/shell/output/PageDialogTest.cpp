// SPDX-License-Identifier: MIT
#include "shell/output/PageDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSettings>
#include <QTest>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

class PageDialogTest : public testing::Test
{
protected:
    PageDialogTest()
    {
        QSettings().clear();
        Open(PageDialog::Purpose::Export);
    }
    ~PageDialogTest() override { QSettings().clear(); }

    void Open(PageDialog::Purpose purpose)
    {
        m_dialog = std::make_unique<PageDialog>(purpose, "Town", 12345.6, nullptr);
        m_dialog->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(m_dialog.get()));
    }

    template <typename Control> Control& Of(const char* name) const
    {
        auto* control = m_dialog->findChild<Control*>(name);
        EXPECT_TRUE(control) << name;
        return *control;
    }

    void Choose(const char* name, const QString& text) const
    {
        auto& box = Of<QComboBox>(name);
        box.setCurrentIndex(box.findText(text));
        emit box.activated(box.currentIndex());
    }

    template <typename Button> void Click(const char* name) const
    {
        auto& button = Of<Button>(name);
        QTest::mouseClick(&button, Qt::LeftButton, {}, QPoint(8, button.height() / 2));
    }

    void TypeInto(const char* name, const QString& text) const
    {
        auto& box = Of<QDoubleSpinBox>(name);
        box.setFocus();
        box.selectAll();
        QTest::keyClicks(&box, text);
        QTest::keyClick(&box, Qt::Key_Tab);
    }

    std::unique_ptr<PageDialog> m_dialog;
};

} // namespace

TEST_F(PageDialogTest, AMapBeginsOnAWidePageWithEverything)
{
    const PageSettings settings = m_dialog->Settings();
    EXPECT_EQ(settings.size, QSizeF(297, 210));
    EXPECT_EQ(settings.title, "Town");
    EXPECT_TRUE(settings.legend);
    EXPECT_TRUE(settings.scaleBar);
    EXPECT_EQ(settings.scaleDenominator, 0);
}

TEST_F(PageDialogTest, PaperAndOrientationGiveTheSize)
{
    Choose("cmbPaper", "A3");
    Choose("cmbOrientation", "Portrait");
    EXPECT_EQ(m_dialog->Settings().size, QSizeF(297, 420));
    EXPECT_EQ(Of<QDoubleSpinBox>("spnHeight").value(), 420);
    EXPECT_FALSE(Of<QDoubleSpinBox>("spnHeight").isEnabled());
}

TEST_F(PageDialogTest, AnOwnSizeIsTypedInPixels)
{
    Choose("cmbPaper", "Custom size");
    TypeInto("spnWidth", "600");
    TypeInto("spnHeight", "300");
    EXPECT_NEAR(m_dialog->Settings().size.width(), 600 / 300.0 * 25.4, 1e-9);
    EXPECT_NEAR(m_dialog->Settings().size.height(), 25.4, 1e-9);
    EXPECT_TRUE(Of<QLabel>("lblSummary").text().contains("600"));
}

TEST_F(PageDialogTest, AnotherUnitKeepsTheSize)
{
    Choose("cmbPaper", "Custom size");
    TypeInto("spnWidth", "600");
    TypeInto("spnHeight", "300");
    Choose("cmbUnit", "mm");
    EXPECT_NEAR(Of<QDoubleSpinBox>("spnWidth").value(), 50.8, 0.05);
    EXPECT_NEAR(m_dialog->Settings().size.width(), 50.8, 0.05);
}

TEST_F(PageDialogTest, AnOwnSizeOutlivesALookAtThePapers)
{
    Choose("cmbPaper", "Custom size");
    TypeInto("spnWidth", "777");
    Choose("cmbPaper", "A4");
    Choose("cmbPaper", "Custom size");
    EXPECT_EQ(Of<QDoubleSpinBox>("spnWidth").value(), 777);
    EXPECT_EQ(Of<QComboBox>("cmbUnit").currentText(), "pixels");
}

TEST_F(PageDialogTest, TheScaleOfTheWindowIsOfferedAndAnotherCanBeTyped)
{
    EXPECT_EQ(Of<QDoubleSpinBox>("spnScale").value(), 12350);
    EXPECT_FALSE(Of<QDoubleSpinBox>("spnScale").isEnabled());
    Click<QRadioButton>("optScale");
    EXPECT_EQ(m_dialog->Settings().scaleDenominator, 12350);
    TypeInto("spnScale", "50000");
    EXPECT_EQ(m_dialog->Settings().scaleDenominator, 50000);
}

TEST_F(PageDialogTest, WithoutAnythingBesideItTheMapFillsThePage)
{
    for (const char* name : {"chkTitle", "chkLegend", "chkScaleBar"})
        Click<QCheckBox>(name);
    const PageSettings settings = m_dialog->Settings();
    EXPECT_TRUE(settings.title.isEmpty());
    EXPECT_EQ(settings.margin, 0);
    EXPECT_FALSE(Of<QLineEdit>("txtTitle").isEnabled());
}

TEST_F(PageDialogTest, WhatIsAcceptedIsOfferedAgain)
{
    Choose("cmbPaper", "A5");
    Click<QCheckBox>("chkLegend");
    QTest::keyClick(m_dialog.get(), Qt::Key_Enter);
    EXPECT_EQ(m_dialog->result(), QDialog::Accepted);
    Open(PageDialog::Purpose::Export);
    EXPECT_EQ(Of<QComboBox>("cmbPaper").currentText(), "A5");
    EXPECT_FALSE(Of<QCheckBox>("chkLegend").isChecked());
}

TEST_F(PageDialogTest, WhatIsCancelledIsForgotten)
{
    Choose("cmbPaper", "A5");
    QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
    Open(PageDialog::Purpose::Export);
    EXPECT_EQ(Of<QComboBox>("cmbPaper").currentText(), "A4");
}

TEST_F(PageDialogTest, ForPrintingThePrinterKnowsItsPaper)
{
    Open(PageDialog::Purpose::Print);
    EXPECT_FALSE(Of<QComboBox>("cmbPaper").isVisible());
    EXPECT_TRUE(Of<QCheckBox>("chkLegend").isVisible());
}

} // namespace Orvane
