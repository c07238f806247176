// SPDX-License-Identifier: MIT
#include "ui_DesignedForm.h"

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QUiLoader>

#include <functional>
#include <gtest/gtest.h>
#include <memory>

namespace Orvane {

namespace {

std::unique_ptr<QWidget> Generated()
{
    auto form = std::make_unique<QWidget>();
    Ui::DesignedForm().setupUi(form.get());
    return form;
}

// The controls come from the plug-in, so their classes are not those of this program.
std::unique_ptr<QWidget> Loaded()
{
    QUiLoader loader;
    loader.addPluginPath(QFileInfo(ORVANE_DESIGNER_PLUGIN).absolutePath());
    QFile file(ORVANE_DESIGNED_FORM);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return std::unique_ptr<QWidget>(loader.load(&file));
}

class DesignedForm : public testing::TestWithParam<std::function<std::unique_ptr<QWidget>()>>
{
protected:
    DesignedForm() : m_form(GetParam()()) { }

    QWidget& Control(const char* name) const { return *m_form->findChild<QWidget*>(name); }
    std::string ClassOf(const char* name) const { return Control(name).metaObject()->className(); }
    QComboBox& Combo() const { return dynamic_cast<QComboBox&>(Control("cboWeight")); }
    QImage Picture(int index)
    {
        Combo().setCurrentIndex(index);
        return Combo().grab().toImage();
    }

    std::unique_ptr<QWidget> m_form;
};

} // namespace

TEST_P(DesignedForm, HasTheThreeControls)
{
    EXPECT_EQ(ClassOf("chkVisible"), "Orvane::CheckBoxPlus");
    EXPECT_EQ(ClassOf("cboWeight"), "Orvane::OvCombo");
    EXPECT_EQ(ClassOf("spnWidth"), "Orvane::OvSpin");
}

TEST_P(DesignedForm, SetsPropertiesOfTheControls)
{
    EXPECT_EQ(Control("chkVisible").property("Caption"), "&Visible");
    EXPECT_EQ(Control("chkVisible").property("CycleMode"), 1);
    EXPECT_EQ(Control("chkVisible").property("Value"), "2");
    EXPECT_EQ(Combo().maxVisibleItems(), 7);
    EXPECT_EQ(Control("spnWidth").property("Value").toFloat(), 120);
    EXPECT_EQ(Control("spnWidth").property("Step").toFloat(), 0.5f);
}

TEST_P(DesignedForm, ShowsTheItemsOfACombo)
{
    ASSERT_EQ(Combo().count(), 2);
    EXPECT_EQ(Combo().currentText(), "Thick");
    m_form->resize(200, 200);
    const QImage blank = Picture(-1);
    EXPECT_NE(Picture(0), blank);
    EXPECT_NE(Picture(1), blank);
    EXPECT_NE(Picture(0), Picture(1));
}

TEST_P(DesignedForm, ConnectsSignalsOfTheControls)
{
    auto& label = dynamic_cast<QLabel&>(Control("lblWidth"));
    label.setText("120");
    QMetaObject::invokeMethod(&Control("spnWidth"), "StepUp");
    EXPECT_EQ(label.text(), "");
}

INSTANTIATE_TEST_SUITE_P(Generated, DesignedForm, testing::Values(&Generated));
INSTANTIATE_TEST_SUITE_P(Loaded, DesignedForm, testing::Values(&Loaded));

} // namespace Orvane
