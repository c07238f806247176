// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/hostkit/schemes/SchemeDocument.h>

#include <QFile>
#include <QString>
#include <QtGlobal>

#include <functional>
#include <optional>

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

/// A scheme file of which no more than one layer is in memory at a time, if it has one line per layer; the
/// file stays open meanwhile.
class Reader
{
public:
    /// Gets a layer of the scheme, and the part of the file that was read, from 0 to 1.
    using Visitor = std::function<void(const SchemeDocument::Layer& layer, double done)>;

    /// Raises as Read does.
    explicit Reader(const QString& path);

    /// Of the scheme.
    const QString& Name() const { return m_head.name; }
    /// The same with what the scheme holds and when it was saved.
    const SchemeHead& Head() const { return m_head; }
    /// Calls the visitor for each layer, with the part that was read, from 0 to 1; may be called again.
    /// Raises as Read does, and what the visitor raises.
    void ForEachLayer(const Visitor& visitor);

private:
    bool Begin(SchemeDocument::Reader& text);

    QString m_path;
    QFile m_file;
    SchemeHead m_head;
    std::optional<SchemeDocument> m_document; // of a file that is small, or has other lines
};

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
