// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

/// A name as one short line: for menus, questions and the status bar, which any text must fit. maximum: in
/// characters, an ellipsis included.
QString ShownName(const QString& name, qsizetype maximum = 60);

/// The same for an action's text, where an ampersand would mark a letter.
QString MenuName(const QString& name);

} // namespace Orvane
