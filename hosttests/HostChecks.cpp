// SPDX-License-Identifier: MIT
#include "hosttests/HostChecks.h"

#include "hosttests/CheckLists.h"
#include "hosttests/CheckRun.h"

#include <iterator>

namespace Orvane::HostTests {

namespace {

QString Described(const RunTimeError& error)
{
    return QStringLiteral("raised the error %1: %2").arg(error.Number()).arg(error.Description());
}

// What act raises, as a text; empty if it raises nothing.
template <typename Act> QString ErrorOf(Act&& act)
{
    try {
        act();
    } catch (const RunTimeError& error) {
        return Described(error);
    } catch (const std::exception& error) {
        return QStringLiteral("raised something else than a RunTimeError: ")
            + QString::fromUtf8(error.what());
    } catch (...) {
        return QStringLiteral("raised something that is no std::exception");
    }
    return {};
}

QString WhyNot(const IHostUnderTest& host, const std::vector<Ability>& needs)
{
    for (const Ability ability : needs) {
        QString reason = host.WhyNot(ability);
        if (!reason.isEmpty())
            return reason;
    }
    return {};
}

CheckResult RunOn(IHostUnderTest& host, const HostCheck& check)
{
    const QString reason = WhyNot(host, check.needs);
    if (!reason.isEmpty())
        return {reason, {}};
    CheckRun run(host, check.contents());
    const QString error = ErrorOf([&] { check.run(run); });
    CheckResult result{run.Skipped(), run.Findings()};
    if (!error.isEmpty())
        result.findings << error;
    if (!result.findings.isEmpty())
        result.skipped.clear();
    return result;
}

} // namespace

QString IHostUnderTest::WhyNot(Ability ability) const
{
    if (ability == Ability::SecondProgram)
        return QStringLiteral("the host did not say that it can be opened twice");
    return {};
}

std::vector<HostCheck> AllHostChecks()
{
    std::vector<HostCheck> all;
    for (const auto list :
         {TreeChecks, ListChecks, MembershipChecks, ColumnChecks, SeekChecks, CursorChecks, WritingChecks,
          TransactionChecks, ClientChecks, WindowChecks, SchemeChecks, ServiceChecks, SessionChecks,
          OptionalChecks, NoteChecks}) {
        std::vector<HostCheck> checks = list();
        all.insert(all.end(), std::make_move_iterator(checks.begin()), std::make_move_iterator(checks.end()));
    }
    return all;
}

CheckResult RunCheck(const HostCheck& check, const MakeHost& makeHost)
{
    CheckResult result;
    const QString error = ErrorOf([&] {
        const std::unique_ptr<IHostUnderTest> host = makeHost(check.contents());
        if (!host)
            throw RunTimeError(ErrorNumber::NotInitialised, QStringLiteral("MakeHost returned nullptr"));
        result = RunOn(*host, check);
    });
    if (!error.isEmpty())
        result.findings << QStringLiteral("making the host: ") + error;
    return result;
}

} // namespace Orvane::HostTests
