// SPDX-License-Identifier: MIT
#include "hosttests/CheckRun.h"

#include "hostkit/tracing/TraceText.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <QApplication>

#include <utility>

namespace Orvane::HostTests {

namespace {

QString ListOf(const std::vector<qint32>& ids)
{
    QStringList texts;
    for (const qint32 id : ids)
        texts << QString::number(id);
    return texts.isEmpty() ? QStringLiteral("nothing") : texts.join(QStringLiteral(", "));
}

QString Difference(const QString& what, const QString& found, const QString& expected)
{
    return what + QStringLiteral(": found ") + found + QStringLiteral(", expected ") + expected;
}

} // namespace

CheckRun::CheckRun(IHostUnderTest& host, HostContents contents)
    : m_host(host), m_contents(std::move(contents))
{
}

IShellServices& CheckRun::Services()
{
    IShellServices* services = Client().GetShellServices();
    if (!services)
        throw RunTimeError(ErrorNumber::NotInitialised, QStringLiteral("GetShellServices returned nullptr"));
    return *services;
}

bool CheckRun::Expect(bool condition, const QString& finding)
{
    if (!condition)
        m_findings << finding;
    return condition;
}

bool CheckRun::ExpectValue(const QString& what, const Value& found, const Value& expected)
{
    return Expect(
        IsSameValue(found, expected), Difference(what, TraceText::Of(found), TraceText::Of(expected)));
}

bool CheckRun::ExpectNumber(const QString& what, qint64 found, qint64 expected)
{
    return Expect(found == expected, Difference(what, QString::number(found), QString::number(expected)));
}

bool CheckRun::ExpectText(const QString& what, const QString& found, const QString& expected)
{
    return Expect(found == expected, Difference(what, TraceText::Of(found), TraceText::Of(expected)));
}

bool CheckRun::ExpectIDs(
    const QString& what, const std::vector<qint32>& found, const std::vector<qint32>& expected)
{
    return Expect(found == expected, Difference(what, ListOf(found), ListOf(expected)));
}

void CheckRun::NoteError(const QString& what, const RunTimeError& error, std::optional<ErrorNumber> number)
{
    Expect(!error.Description().isEmpty(), what + QStringLiteral(" raised an error without a text"));
    if (number) {
        ExpectNumber(
            what + QStringLiteral(" raised \"") + error.Description() + QStringLiteral("\" with the number"),
            error.Number(), int(*number));
    }
}

bool IsSameValue(const Value& found, const Value& expected)
{
    if (expected.IsNull() || found.IsNull() || found.IsEmpty())
        return found.IsNull() && expected.IsNull();
    if (expected.IsText() || found.IsText())
        return found.IsIdenticalTo(expected);
    if (expected.IsBoolean())
        return ToBoolean(found) == ToBoolean(expected);
    return ToDouble(found) == ToDouble(expected);
}

bool HasWindows(CheckRun& run)
{
    const bool has = qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr;
    if (!has)
        run.Skip(QStringLiteral("the program has no QApplication"));
    return has;
}

} // namespace Orvane::HostTests
