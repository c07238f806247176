// SPDX-License-Identifier: MIT
#pragma once

#include "messages/MessageCatalogue.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace Orvane {

class AddedTexts;

/// The catalogues to ask for a text, in this order. Of these languages the first counts that has texts: added
/// ones, of the tag itself and then of its leading parts, and behind them those of the message file that
/// MessageFilePath names. English ends the search, but texts may be added for it too.
///
/// folder: that of the message files. languages: as QLocale::uiLanguages returns them.
std::vector<MessageCatalogue>
CataloguesFor(const QString& folder, const AddedTexts& added, const QStringList& languages);

} // namespace Orvane
