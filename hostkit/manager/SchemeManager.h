// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/manager/ManagerHost.h"

#include <QDialog>

class QTabWidget;

namespace Orvane {

class ComparePage;
class SchemesPage;

/// The window in which the user manages the schemes of a map. It remembers its size, its place and the width
/// of its columns.
class SchemeManager : public QDialog
{
    Q_OBJECT

public:
    /// host: its parts outlive this window.
    explicit SchemeManager(const ManagerHost& host, QWidget* parent = nullptr);

    /// Remembers the size and closes the window.
    void done(int result) override;

private:
    QTabWidget* MakePages();
    void Restore();
    void Remember();

    ManagerHost m_host;
    SchemesPage* m_schemes; // the pages are owned by the window
    ComparePage* m_compare;
};

} // namespace Orvane
