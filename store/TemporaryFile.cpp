// SPDX-License-Identifier: MIT
#include "store/TemporaryFile.h"

#include "store/StoreTexts.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QCoreApplication>
#include <QDir>

namespace Orvane {

TemporaryFile::TemporaryFile() : m_file(QDir(QDir::tempPath()).filePath(QStringLiteral("orvane-undo")))
{
    if (!m_file.open())
        Raise();
}

// What was written in part lies past the size, so the next bytes replace it.
void TemporaryFile::Append(std::string_view bytes)
{
    const auto size = qint64(bytes.size());
    if (!m_file.seek(m_size) || m_file.write(bytes.data(), size) != size || !m_file.flush())
        Raise();
    m_size += size;
}

void TemporaryFile::ShrinkTo(qint64 size)
{
    m_file.resize(size); // only gives room back
    m_size = size;
}

void TemporaryFile::Read(qint64 place, char* to, qint64 size) const
{
    if (!m_file.seek(place) || m_file.read(to, size) != size)
        Raise();
}

void TemporaryFile::Raise() const
{
    QString text = QCoreApplication::translate("LayerStore", StoreTexts::ChangesNotKept);
    text.replace(QLatin1String("^2"), m_file.errorString());
    text.replace(QLatin1String("^1"), QDir::toNativeSeparators(QDir::tempPath()));
    throw RunTimeError(ErrorNumber::DatabaseFailure, text, QStringLiteral("LayerStore"));
}

} // namespace Orvane
