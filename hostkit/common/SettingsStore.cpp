// SPDX-License-Identifier: MIT
#include "hostkit/common/SettingsStore.h"

#include <QSettings>
#include <QUrl>

namespace Orvane {

namespace {

// Slashes would create groups, and a stored key may not be empty.
QString StoredKey(const QString& key)
{
    return QStringLiteral("Editors/") + QString::fromLatin1(QUrl::toPercentEncoding(key, ": "));
}

} // namespace

SettingsStore::SettingsStore() : m_settings(std::make_unique<QSettings>())
{
}

SettingsStore::SettingsStore(const QString& path)
    : m_settings(std::make_unique<QSettings>(path, QSettings::IniFormat))
{
}

SettingsStore::~SettingsStore() = default;

QString SettingsStore::Read(const QString& key) const
{
    return m_settings->value(StoredKey(key)).toString();
}

void SettingsStore::Write(const QString& key, const QString& value)
{
    m_settings->setValue(StoredKey(key), value);
}

} // namespace Orvane
