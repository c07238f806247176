// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace Orvane {

class MapSession;

/// The field of the status bar with the current scheme, "Scheme: Day", followed by a star while layers differ
/// from the scheme. Its tool tip and accessible name say the same in words.
class SchemeStatus : public QLabel
{
    Q_OBJECT
public:
    explicit SchemeStatus(QWidget* parent = nullptr);

    /// Shows the scheme of this map from now on, and each change of it; not owned.
    void Use(MapSession& session);

private:
    void Refresh();
    void ShowScheme(const QString& scheme, qsizetype differing);

    MapSession* m_session = nullptr;
};

} // namespace Orvane
