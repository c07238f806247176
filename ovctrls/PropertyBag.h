// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QString>
#include <QVariant>
#include <QVariantMap>
#include <QtGlobal>

namespace Orvane {

/// The properties of one control by key, as its container stores them. A property at its default is not
/// stored, so that it follows later changes of the default.
///
///     PropertyBag bag;
///     box.WriteProperties(bag);
///     settings.setValue("chkVisible", bag.Contents());
class PropertyBag
{
public:
    /// An empty bag, or one with stored values by key.
    PropertyBag() = default;
    explicit PropertyBag(const QVariantMap& contents) : m_contents(contents) { }

    /// Stores the value, or removes the key when the value equals the default.
    void WriteProperty(const QString& key, const QVariant& value, const QVariant& defaultValue);

    /// The stored 32-bit integer, else the default. Raises 13 for a value that holds no number, 6 for one
    /// that is too large.
    qint32 ReadLong(const QString& key, qint32 defaultValue) const;
    /// The stored boolean, else the default; a number is true unless it is 0. Raises 13 for any other value.
    bool ReadBoolean(const QString& key, bool defaultValue) const;
    /// The stored font, else the default. Raises 13 for a value that is no font.
    QFont ReadFont(const QString& key, const QFont& defaultValue) const;

    /// True if a value is stored under the key.
    bool Contains(const QString& key) const { return m_contents.contains(key); }
    /// All stored values by key.
    const QVariantMap& Contents() const { return m_contents; }

private:
    QVariantMap m_contents;
};

} // namespace Orvane
