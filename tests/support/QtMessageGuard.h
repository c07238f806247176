// SPDX-License-Identifier: MIT
#pragma once

#include <QRegularExpression>
#include <QString>

namespace Orvane::Testing {

/// Fails the running test at each Qt warning or critical message that no ExpectedQtWarning allows. Call once
/// in main().
void FailOnQtWarnings();

/// Allows warnings that match the pattern during its lifetime, and fails the test when none was issued.
class ExpectedQtWarning
{
public:
    explicit ExpectedQtWarning(const QString& pattern);
    ~ExpectedQtWarning();
    ExpectedQtWarning(const ExpectedQtWarning&) = delete;
    ExpectedQtWarning& operator=(const ExpectedQtWarning&) = delete;

    /// Counts the message when it matches.
    bool Accepts(const QString& message);

private:
    QRegularExpression m_pattern;
    int m_count = 0;
};

} // namespace Orvane::Testing
