// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace Orvane {

/// The tags to look for, language by language: first all that were given for a language, then their leading
/// parts, the longer ones first. "pt-Latn-BR", "pt-BR" gives "pt-Latn-BR", "pt-BR", "pt-Latn", "pt".
///
/// languages: as QLocale::uiLanguages returns them; "_" is taken for "-".
std::vector<QStringList> LanguageTags(const QStringList& languages);

/// True for English of any country and for "C": the texts are English already.
bool IsEnglish(const QString& tag);

} // namespace Orvane
