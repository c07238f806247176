// SPDX-License-Identifier: MIT
#include "shell/window/QtTexts.h"

#include <QTranslator>

#include <gtest/gtest.h>

namespace Orvane {

class QtTexts : public testing::TestWithParam<const char*>
{
};

TEST_P(QtTexts, ButtonsAndFileDialogsSpeakEveryLanguageOfOrvane)
{
    QTranslator translator;
    ASSERT_TRUE(LoadQtTexts(translator, GetParam()));
    EXPECT_FALSE(translator.translate("QPlatformTheme", "&Yes").isEmpty());
    EXPECT_FALSE(translator.translate("QFileDialog", "Look in:").isEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    , QtTexts, testing::Values("de", "fr", "ja"),
    [](const testing::TestParamInfo<const char*>& language) { return std::string(language.param); });

TEST(QtTextsWithoutALanguage, AreNotLoaded)
{
    QTranslator translator;
    EXPECT_FALSE(LoadQtTexts(translator, QString()));
}

} // namespace Orvane
