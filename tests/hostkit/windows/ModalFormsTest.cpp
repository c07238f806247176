// SPDX-License-Identifier: MIT
#include "hostkit/windows/ModalForms.h"

#include "hostkit/HostKitTest.h"

#include <QDialog>
#include <QTest>
#include <QTimer>
#include <QWindow>

namespace Orvane::Testing {
namespace {

TEST(ModalForms, RunReturnsWhenTheUserClosesTheForm)
{
    ModalForms forms;
    QDialog form;
    WhenModal([](QWidget& shown) { QTest::keyClick(&shown, Qt::Key_Escape); });
    forms.Run(&form);
    EXPECT_FALSE(form.isVisible());
}

TEST(ModalForms, RunReturnsWhenAPlainWidgetIsClosed)
{
    ModalForms forms;
    QWidget form;
    WhenModal([](QWidget& shown) { shown.close(); });
    forms.Run(&form);
    EXPECT_FALSE(form.isVisible());
}

TEST(ModalForms, RunReturnsWhenTheFormIsDestroyed)
{
    ModalForms forms;
    auto* form = new QDialog;
    WhenModal([](QWidget& shown) { delete &shown; });
    forms.Run(form);
    forms.End(form); // the session is over: nothing happens
}

TEST(ModalForms, TheFormIsModalOnlyWhileItRuns)
{
    ModalForms forms;
    QDialog form;
    WhenModal([&](QWidget&) {
        EXPECT_EQ(form.windowModality(), Qt::ApplicationModal);
        forms.End(&form);
    });
    forms.Run(&form);
    EXPECT_EQ(form.windowModality(), Qt::NonModal);
}

TEST(ModalForms, AFormCanRunAgain)
{
    ModalForms forms;
    QDialog form;
    int shown = 0;
    for (int run = 0; run < 2; ++run) {
        WhenModal([&](QWidget&) {
            ++shown;
            forms.End(&form);
        });
        forms.Run(&form);
    }
    EXPECT_EQ(shown, 2);
}

TEST(ModalForms, OneFormRunsOverAnother)
{
    ModalForms forms;
    QDialog lower;
    QDialog upper;
    WhenModal([&](QWidget&) {
        WhenModal([&](QWidget& shown) {
            EXPECT_EQ(&shown, &upper);
            EXPECT_TRUE(lower.isVisible());
            forms.End(&upper);
        });
        forms.Run(&upper);
        EXPECT_TRUE(lower.isVisible());
        forms.End(&lower);
    });
    forms.Run(&lower);
    EXPECT_FALSE(lower.isVisible());
}

TEST(ModalForms, RunningAFormThatRunsDoesNotNest)
{
    ModalForms forms;
    QDialog form;
    WhenModal([&](QWidget&) {
        forms.Run(&form);
        EXPECT_TRUE(form.isVisible());
        forms.End(&form);
    });
    forms.Run(&form);
}

TEST(ModalForms, EndingAFormThatDoesNotRunLeavesItAlone)
{
    ModalForms forms;
    QDialog form;
    form.show();
    forms.End(&form);
    forms.End(nullptr);
    EXPECT_TRUE(form.isVisible());
}

TEST(ModalForms, TheFormStandsBeforeTheActiveWindow)
{
    ModalForms forms;
    QDialog active;
    active.show();
    active.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&active));
    QDialog form;
    WhenModal([&](QWidget&) {
        EXPECT_EQ(form.windowHandle()->transientParent(), active.windowHandle());
        forms.End(&form);
    });
    forms.Run(&form);
    EXPECT_EQ(form.parent(), nullptr);
}

TEST(ModalForms, TheFormIsShownWhereItsCallerPutIt)
{
    ModalForms forms;
    QDialog form;
    form.move(120, 90);
    WhenModal([&](QWidget&) {
        EXPECT_EQ(form.pos(), QPoint(120, 90));
        forms.End(&form);
    });
    forms.Run(&form);
}

} // namespace
} // namespace Orvane::Testing
