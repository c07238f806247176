// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/OrvaneShellLib/IStyleEditorClient.h>
#include <orvane/hosttests/HostContents.h>

#include <QString>

#include <functional>
#include <memory>

namespace Orvane::HostTests {

/// What a host may leave out. The tests that need it are then skipped, with the host's reason.
enum class Ability {
    Writing, ///< rows can be changed; a host without it must refuse each change
    NullValues, ///< every column but the IDs may hold NULL
    NestedTransactions, ///< a transaction may begin inside another one
    Schemes, ///< schemes can be created, saved and deleted
    SchemeValues, ///< loading a scheme gives the layers its values
    CreatingLayers, ///< CreateLayer works without a user
    DeletingLayers, ///< DeleteLayer works without a user
    SecondProgram, ///< OpenAgain returns another host on the same database
};

/// Your host, as the tests see it: one object for each test, with a layer database that holds exactly the
/// contents of that test. Tests are made by RegisterHostTests.
///
///     class MyHost : public IHostUnderTest
///     {
///     public:
///         explicit MyHost(const HostContents& contents) { ...insert the rows... }
///         IStyleEditorClient& Client() override { return m_client; }
///         ...
///     };
///
/// All calls are made on one thread. In a program without a QApplication, tests that need windows are
/// skipped.
class IHostUnderTest
{
public:
    virtual ~IHostUnderTest() = default;
    IHostUnderTest(const IHostUnderTest&) = delete;
    IHostUnderTest& operator=(const IHostUnderTest&) = delete;

    /// The host's application object; always the same. It must not wait for a user: questions are answered
    /// with Yes, or the ability is left out.
    virtual IStyleEditorClient& Client() = 0;

    /// Empty if the host can do this; otherwise the reason why not, which the test program prints. By default
    /// a host can do everything except Ability::SecondProgram.
    virtual QString WhyNot(Ability ability) const;

    /// A second host on the same layer database, as another program would open it. It is destroyed before
    /// this one, and waits for locks as briefly as possible. By default nullptr.
    virtual std::unique_ptr<IHostUnderTest> OpenAgain() { return nullptr; }

protected:
    IHostUnderTest() = default;
};

/// Makes a host whose layer database holds exactly these rows. Errors fail the test.
using MakeHost = std::function<std::unique_ptr<IHostUnderTest>(const HostContents& contents)>;

} // namespace Orvane::HostTests
