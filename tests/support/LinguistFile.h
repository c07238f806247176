// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <utility>
#include <vector>

namespace Orvane::Testing {

/// An English text and its translation.
using MessagePair = std::pair<QString, QString>;

/// A Qt Linguist document with these finished messages in one context.
QByteArray LinguistDocument(const std::vector<MessagePair>& messages, const QString& context = "Test");

/// Writes the bytes, replacing a former file. Fails the test when that cannot be done.
void WriteFile(const QString& path, const QByteArray& bytes);

/// All bytes of a file. Fails the test when it cannot be read.
QByteArray ReadFile(const QString& path);

/// The path of a file below the source tree.
QString SourcePath(const QString& relative);

} // namespace Orvane::Testing
