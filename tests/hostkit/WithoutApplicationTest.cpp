// SPDX-License-Identifier: MIT
#include "hostkit/StyleEditorPlugin.h"

#include <OrvaneShellLib/IStyleEditorLibrary.h>
#include <OrvaneShellLib/RunTimeError.h>

#include <gtest/gtest.h>

namespace Orvane::Testing {
namespace {

TEST(StyleEditorPluginWithoutApplication, SaysWhatTheProgramLacks)
{
    try {
        const StyleEditorPlugin plugin(QStringLiteral(FAKE_PLUGIN_FOLDER "/fake_plugin_same"));
        FAIL() << "it was loaded";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), int(ErrorNumber::PluginFailure));
        EXPECT_TRUE(error.Description().contains(QStringLiteral("QApplication")));
        EXPECT_TRUE(error.Description().contains(QStringLiteral("fake_plugin_same")));
    }
}

} // namespace
} // namespace Orvane::Testing
