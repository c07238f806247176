// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/hostkit/schemes/SchemeDocument.h>

#include <QString>
#include <QtGlobal>

#include <functional>

class QIODevice;

namespace Orvane {

/// Layer schemes in files of their own, in the format of SchemeDocument, for copying them from map to map.
namespace SchemeFile {

/// Larger files are read only if they have one line per layer, as Write writes them. A scheme of 100,000
/// layers takes a third of this size.
inline constexpr qint64 LargestFile = qint64(128) * 1024 * 1024; // bytes

/// Larger files are read line by line first, so that told is called.
inline constexpr qint64 SmallFile = qint64(1024) * 1024; // bytes

/// Raises HostError::SchemeFileUnreadable, which names the file and says what is wrong with it. told: called
/// now and then with the part that was read, from 0 to 1; if it raises UserCancelled, that is passed on.
SchemeDocument Read(const QString& path, const std::function<void(double done)>& told = {});

/// Writes a text into the device that it is given.
using Writer = std::function<void(QIODevice& text)>;

/// Makes the file with what write writes, replacing an existing one completely or not at all, on a full disk
/// too. Raises HostError::SchemeFileUnwritable, and what write raises.
void Make(const QString& path, const Writer& write);

/// Writes the file, replacing an existing one completely or not at all, on a full disk too. Raises
/// HostError::SchemeFileUnwritable, and the errors of SchemeDocument::ToJson.
void Write(const QString& path, const SchemeDocument& scheme);

} // namespace SchemeFile

} // namespace Orvane
