// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

#include <memory>

class QSettings;

namespace Orvane {

/// Texts under keys, kept for the person beyond the run. Any text is a key; case counts. An editor's view
/// state is kept under "DrawStyleEditor::" + its ID.
class SettingsStore
{
public:
    /// The application's own settings, by QCoreApplication's organisation and application name.
    SettingsStore();
    /// A settings file. path: absolute.
    explicit SettingsStore(const QString& path);
    ~SettingsStore();
    Q_DISABLE_COPY_MOVE(SettingsStore)

    /// The text stored under the key, empty when there is none.
    QString Read(const QString& key) const;
    /// Stores the text under the key.
    void Write(const QString& key, const QString& value);

private:
    std::unique_ptr<QSettings> m_settings;
};

} // namespace Orvane
