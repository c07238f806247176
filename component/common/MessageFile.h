// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace Orvane {

/// The message file to load: "POBEX.LRT" in the folder itself if it exists, whatever the language; else the
/// one in the subfolder of the first language that has it. An English language ends the search, because the
/// texts are English already. If nothing is found, the result is the path in the folder itself, where no file
/// exists. For an empty folder the result is empty.
///
/// languages: as QLocale::uiLanguages returns them, "de-DE" before "de"; a tag's leading parts are tried too,
/// after all tags of the language.
QString MessageFilePath(const QString& folder, const QStringList& languages);

/// The folder of the shared library that contains this code, or of the program if the code is linked into it.
QString ComponentFolder();

} // namespace Orvane
