// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace Orvane {

/// The message file of the host's own texts for the first of these languages ("de-CH", "de") that has one; a
/// null text if none has one, or if English comes first. Looks in "translations" beside the program, as it is
/// built, and in "share/orvane/translations", as it is installed.
QString CatalogueFile(const QStringList& languages);

/// The language of such a file, from its name ("de"); a null text if there is no file.
QString CatalogueLanguage(const QString& file);

} // namespace Orvane
