// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>
#include <QString>

namespace Orvane {

/// The plug-in's texts, and those of the host kit, in the language of QGIS.
namespace QgisTexts {

/// Shows them from now on. QGIS's own translators come before: a word of a menu that both have stays QGIS's.
/// folder: searched first, may be empty.
void Install(const QLocale& locale, const QString& folder);

/// Ends that.
void Remove();

} // namespace QgisTexts

} // namespace Orvane
