// SPDX-License-Identifier: MIT
#include "component/dialog/panel/PropertyTexts.h"

#include "component/model/LayerStyle.h"

#include <QString>
#include <QVariant>
#include <QWidget>

#include <gtest/gtest.h>
#include <utility>

namespace Orvane::Testing {

TEST(PropertyTextsTest, NameAPropertyAsItsCaptionDoesWithoutItsMarks)
{
    const std::pair<const char16_t*, const char16_t*> captions[]{
        {u"&Visible", u"Visible"}, {u"Li&ne colour:", u"Line colour"}, {u"St&yle :", u"Style"},
        {u"表示(&V)", u"表示"},    {u"線の色(&N):", u"線の色"},        {u"Width (mm)", u"Width (mm)"}};
    for (const auto& [caption, name] : captions) {
        QWidget control;
        control.setProperty("Caption", QString::fromUtf16(caption));
        EXPECT_EQ(PropertyName({Slot::Visible, &control}), QString::fromUtf16(name));
    }
}

} // namespace Orvane::Testing
