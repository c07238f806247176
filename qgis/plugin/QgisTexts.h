// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>
#include <QString>

namespace Orvane {

/// The plug-in's texts, and those of the host kit, in the language of QGIS.
namespace QgisTexts {

/// Shows them from now on, in their own contexts only: a word of QGIS's menus stays as QGIS translates it.
/// folder: searched first, may be empty.
void Install(const QLocale& locale, const QString& folder);

/// Ends that.
void Remove();

/// True for a context of the plug-in, the host kit or the store.
bool IsOwn(const char* context);

} // namespace QgisTexts

} // namespace Orvane
