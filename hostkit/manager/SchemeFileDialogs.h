// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QWidget;

namespace Orvane {

/// What the user is asked about the file of a scheme. parent: in front of which window; not owned.
namespace SchemeFileDialogs {

/// The file to write the scheme to, by default of the same name; empty if the user cancels.
QString AskExportPath(QWidget* parent, const QString& scheme);
/// The file to read a scheme from; empty if the user cancels.
QString AskImportPath(QWidget* parent);
/// Whether an import may replace the scheme of that name.
bool AskToReplace(QWidget* parent, const QString& scheme);

} // namespace SchemeFileDialogs

} // namespace Orvane
