// SPDX-License-Identifier: MIT
#include <OrvaneShellLib/IStyleEditorLibrary.h>
#include <OrvaneShellLib/PluginContract.h>
#include <OrvaneShellLib/RunTimeError.h>

#include <QLibrary>

#include <gtest/gtest.h>
#include <memory>

namespace Orvane {

namespace {

TEST(PluginWithoutApplication, RaisesInsteadOfEndingTheProgram)
{
    QLibrary file(QStringLiteral(ORVANE_COMPONENT));
    const auto create = reinterpret_cast<CreateLibraryFunction>(file.resolve(CreateLibrarySymbol));
    ASSERT_TRUE(create);
    const std::unique_ptr<IStyleEditorLibrary> library(create());
    try {
        library->NewStyleEditor(QStringLiteral("Main"));
        FAIL() << "an editor was made";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), int(ErrorNumber::NotInitialised));
        EXPECT_TRUE(error.Description().contains(QStringLiteral("QApplication")));
    }
    EXPECT_EQ(library->GetStyleEditor(QStringLiteral("Main")), nullptr);
}

} // namespace

} // namespace Orvane
