// SPDX-License-Identifier: MIT
#include "support/QtMessageGuard.h"

#include <cstdio>
#include <gtest/gtest.h>
#include <vector>

namespace Orvane::Testing {

namespace {

std::vector<ExpectedQtWarning*>& Expectations()
{
    static std::vector<ExpectedQtWarning*> expectations;
    return expectations;
}

// The offscreen platform says this whenever a window is raised, moved or asked to stay on top.
bool IsPlatformNoise(const QString& message)
{
    return message.contains(QLatin1String("This plugin does not support"));
}

bool IsExpected(const QString& message)
{
    for (ExpectedQtWarning* expectation : Expectations()) {
        if (expectation->Accepts(message))
            return true;
    }
    return false;
}

void Handle(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    if (IsPlatformNoise(message))
        return;
    std::fprintf(stderr, "Qt: %s\n", qPrintable(message));
    const bool severe = type == QtWarningMsg || type == QtCriticalMsg;
    if (severe && !IsExpected(message))
        ADD_FAILURE() << "unexpected Qt warning: " << qPrintable(message);
}

} // namespace

void FailOnQtWarnings()
{
    qInstallMessageHandler(Handle);
}

ExpectedQtWarning::ExpectedQtWarning(const QString& pattern) : m_pattern(pattern)
{
    Expectations().push_back(this);
}

ExpectedQtWarning::~ExpectedQtWarning()
{
    std::erase(Expectations(), this);
    EXPECT_GT(m_count, 0) << "no Qt warning matched: " << qPrintable(m_pattern.pattern());
}

bool ExpectedQtWarning::Accepts(const QString& message)
{
    if (!m_pattern.match(message).hasMatch())
        return false;
    ++m_count;
    return true;
}

} // namespace Orvane::Testing
