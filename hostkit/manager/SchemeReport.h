// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QWidget;

namespace Orvane {

struct SchemeImport;

enum class AfterImport {
    Stay, ///< leave the layers as they are
    Switch, ///< give the layers the values of the imported scheme
};

/// What an import did, in a few lines.
QString ReportText(const SchemeImport& import);
/// The names of the layers that did not match, of the map and of the scheme; empty when all matched.
QString ReportDetails(const SchemeImport& import);

/// Shows both in a box over the window and asks how to go on. isCurrent: the scheme is the current one, and
/// was replaced.
AfterImport AskAfterImport(const SchemeImport& import, bool isCurrent, QWidget& window);

} // namespace Orvane
