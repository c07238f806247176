// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QSaveFile>
#include <QString>

namespace Orvane {

/// Why the file at that path cannot be written, as a clause without a full stop, in the user's language. It
/// names the file's folder if there is no room in it, or no such folder; otherwise it is what the system
/// said.
QString WhyNotWritten(const QString& path, const QString& systemReason);

/// A device that writes a file under another name; the file replaces an existing one when all of it is on the
/// disk. Without that, the existing file stays as it was, and nothing else is left in its folder.
///
///     FileReplacement file(path);
///     if (!file.Begin() || file.write(content) != content.size() || !file.Commit())
///         Fail(file.Reason());
///
/// After a write that failed all later ones fail too, so it is enough to ask Commit.
class FileReplacement final : public QIODevice
{
public:
    explicit FileReplacement(const QString& path);
    /// Drops what was written unless Commit succeeded.
    ~FileReplacement() override;
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;

    /// Makes the device writable; false if the file cannot be made.
    [[nodiscard]] bool Begin();
    /// Writes the rest and replaces the file; false if anything since Begin has failed.
    [[nodiscard]] bool Commit();
    /// Why something failed, as from WhyNotWritten; empty if nothing has.
    QString Reason() const { return m_reason; }

    bool isSequential() const override { return true; }

private:
    qint64 readData(char* data, qint64 length) override;
    qint64 writeData(const char* data, qint64 length) override;
    bool WriteAll(const QByteArray& bytes);
    bool Fail(const QString& systemReason);

    QSaveFile m_file;
    QByteArray m_waiting; // to be written together
    QString m_reason;
};

} // namespace Orvane
