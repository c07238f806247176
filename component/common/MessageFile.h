// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace Orvane {

/// The message file to load: "POBEX.LRT" in the folder when it is there, whatever the language; else the one
/// in the sub-folder of the first of the languages that has it. An English language ends the search, as the
/// texts are English already. The answer is then the path in the folder itself, where no file is. An
/// empty folder has none.
///
/// languages: as QLocale::uiLanguages gives them, "de-DE" before "de"; a tag's leading parts are tried too.
QString MessageFilePath(const QString& folder, const QStringList& languages);

/// The folder of the shared library that holds this code; of the program when it is linked in.
QString ComponentFolder();

} // namespace Orvane
