// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/hosttests/IHostUnderTest.h>

#include <QString>

#include <memory>

/// Tests for a host's layer database and application object: everything that the component relies on, and
/// that the headers of the contract promise in the host's name.
///
///     class MyHost : public Orvane::HostTests::IHostUnderTest { ... };
///     ORVANE_HOST_TESTS(MyHost)
///
/// A program with this, linked with GTest::gtest and run with a QApplication, has one test for each duty of a
/// host, such as "MyHost_Queries.TheListGoesByNameWithoutCase". A failed test says what a host must do, and
/// what this one did.
namespace Orvane::HostTests {

/// Adds all tests that need no dialog to the test program. name: begins the names of the tests; letters and
/// digits. Call it before RUN_ALL_TESTS.
void RegisterHostTests(const char* name, const MakeHost& makeHost);

/// Adds tests with the real dialog, which work a session with it. component: a path or a plain name, as for
/// StyleEditorPlugin; empty for the default name. The program needs a QApplication. Without a screen, run it
/// with QT_QPA_PLATFORM=offscreen. Call it before RUN_ALL_TESTS.
void RunWithDialog(const char* name, const MakeHost& makeHost, const QString& component = {});

/// Makes hosts of a class whose constructor takes the contents.
template <typename Host> MakeHost HostMaker()
{
    return [](const HostContents& contents) -> std::unique_ptr<IHostUnderTest> {
        return std::make_unique<Host>(contents);
    };
}

} // namespace Orvane::HostTests

/// Adds the tests for a host class before main begins. Host: an unqualified class name; its constructor takes
/// the contents.
#define ORVANE_HOST_TESTS(Host)                                                                              \
    [[maybe_unused]] static const bool Host##_HasHostTests = [] {                                            \
        Orvane::HostTests::RegisterHostTests(#Host, Orvane::HostTests::HostMaker<Host>());                   \
        return true;                                                                                         \
    }();
