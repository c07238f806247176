// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTemporaryDir>

namespace Orvane::Benchmarks {

/// A copy of a map's file, for works that change what others must find. Removed with the object.
class MapCopy
{
public:
    /// Ends the program if there is no room for it.
    explicit MapCopy(const QString& original);

    QString Path() const { return m_folder.filePath(QStringLiteral("map.ovl")); }

private:
    QTemporaryDir m_folder;
};

/// The file of a map with this many layers and two schemes besides "Standard": in FirstScheme, the current
/// one, and in SecondScheme each layer has another colour. Made at its first use, as BenchmarkMap does.
QString MapWithSchemes(int layerCount);

inline const QString FirstScheme = QStringLiteral("First");
inline const QString SecondScheme = QStringLiteral("Second");

} // namespace Orvane::Benchmarks
