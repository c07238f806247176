// SPDX-License-Identifier: MIT
#include "shell/window/ElidedLabel.h"

#include <QCoreApplication>
#include <QImage>
#include <QMainWindow>
#include <QStatusBar>
#include <QTest>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

class ElidedLabelTest : public testing::Test
{
protected:
    ElidedLabelTest()
    {
        m_window.statusBar()->addPermanentWidget(&m_label);
        m_window.resize(300, 200);
        m_window.show();
    }

    QMainWindow m_window;
    ElidedLabel& m_label = *new ElidedLabel(nullptr); // owned by the status bar
};

} // namespace

TEST_F(ElidedLabelTest, ALongTextDoesNotMakeTheWindowWider)
{
    m_label.setText(QString(200, 'm'));
    QCoreApplication::processEvents();
    EXPECT_EQ(m_window.width(), 300);
    EXPECT_LE(m_label.width(), 300);
}

TEST_F(ElidedLabelTest, ATextHasItsWholeWidthWhereThereIsRoom)
{
    m_label.setText(QStringLiteral("Scheme: Town"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_label.width() >= m_label.sizeHint().width(); }));
}

TEST_F(ElidedLabelTest, WhatDoesNotFitEndsInDots)
{
    const auto picture = [&](const QString& text) {
        m_label.setText(text);
        m_label.resize(80, m_label.height());
        return m_label.grab().toImage();
    };
    const QImage longText = picture(QStringLiteral("Also opened by: somebody"));
    EXPECT_EQ(longText, picture(QStringLiteral("Also opened by: somebody else")));
    EXPECT_NE(longText, picture(QStringLiteral("Also")));
}

} // namespace Orvane
