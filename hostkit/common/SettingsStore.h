// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

#include <memory>

class QSettings;

namespace Orvane {

/// Texts stored under keys, kept for the user after this run. Any text can be a key; keys are case-sensitive.
/// An editor's view state is stored under "DrawStyleEditor::" + its ID.
class SettingsStore
{
public:
    /// The application's own settings, under QCoreApplication's organisation and application name.
    SettingsStore();
    /// A settings file. path: absolute.
    explicit SettingsStore(const QString& path);
    ~SettingsStore();
    Q_DISABLE_COPY_MOVE(SettingsStore)

    /// The text stored under the key, or an empty text.
    QString Read(const QString& key) const;
    /// Stores the text under the key.
    void Write(const QString& key, const QString& value);

private:
    std::unique_ptr<QSettings> m_settings;
};

} // namespace Orvane
