// SPDX-License-Identifier: MIT
#pragma once

#include "hosttests/HostContents.h"
#include "hosttests/IHostUnderTest.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace Orvane::HostTests {

/// One check at work: the host, and what was found.
class CheckRun
{
public:
    /// host: not owned; outlives this object.
    CheckRun(IHostUnderTest& host, HostContents contents);

    IHostUnderTest& Host() { return m_host; }
    IStyleEditorClient& Client() { return m_host.Client(); }
    ILayerDatabase& Database() { return m_host.Client().GetDatabase(); }
    IShellServices& Services();
    /// What the layer database held at first.
    const HostContents& Contents() const { return m_contents; }
    bool Can(Ability ability) const { return m_host.WhyNot(ability).isEmpty(); }

    /// Notes a finding unless the condition holds; returns the condition.
    bool Expect(bool condition, const QString& finding);
    /// Expects the same number, truth or text, of whatever kind it is stored as. what: begins the finding.
    bool ExpectValue(const QString& what, const Value& found, const Value& expected);
    bool ExpectNumber(const QString& what, qint64 found, qint64 expected);
    bool ExpectText(const QString& what, const QString& found, const QString& expected);
    bool
    ExpectIDs(const QString& what, const std::vector<qint32>& found, const std::vector<qint32>& expected);

    /// Expects that act raises a RunTimeError with a text, and with that number if one is given.
    template <typename Act>
    void ExpectError(const QString& what, Act&& act, std::optional<ErrorNumber> number = std::nullopt)
    {
        try {
            act();
        } catch (const RunTimeError& error) {
            NoteError(what, error, number);
            return;
        }
        Expect(false, what + QStringLiteral(" raised no error"));
    }

    /// Runs act, which may raise a RunTimeError. True if it raised none.
    template <typename Act> bool Allow(Act&& act)
    {
        try {
            act();
        } catch (const RunTimeError&) {
            return false;
        }
        return true;
    }

    const QStringList& Findings() const { return m_findings; }
    /// Ends the check as not run, if it has found nothing.
    void Skip(const QString& reason) { m_skipped = reason; }
    const QString& Skipped() const { return m_skipped; }

private:
    void NoteError(const QString& what, const RunTimeError& error, std::optional<ErrorNumber> number);

    IHostUnderTest& m_host;
    HostContents m_contents;
    QStringList m_findings;
    QString m_skipped;
};

/// True if both stand for the same: Null and Null, equal numbers, equal texts, a flag and a number that means
/// the same.
bool IsSameValue(const Value& found, const Value& expected);

/// True if the program has a QApplication. Otherwise the check is ended as not run.
bool HasWindows(CheckRun& run);

} // namespace Orvane::HostTests
