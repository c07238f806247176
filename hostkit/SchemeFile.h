// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/SchemeDocument.h"

#include <QString>
#include <QtGlobal>

namespace Orvane {

/// Layer schemes in files of their own, as SchemeDocument says, to hand from map to map.
namespace SchemeFile {

/// Larger files are refused unread: a scheme of 100,000 layers has a third of it.
inline constexpr qint64 LargestFile = qint64(128) * 1024 * 1024; // bytes

/// Raises HostError::SchemeFileUnreadable with the file's name and what is wrong with it.
SchemeDocument Read(const QString& path);

/// Replaces a file of that name, whole or not at all. Raises HostError::SchemeFileUnwritable, and what
/// SchemeDocument::ToJson raises.
void Write(const QString& path, const SchemeDocument& scheme);

} // namespace SchemeFile

} // namespace Orvane
