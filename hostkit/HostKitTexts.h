// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>
#include <QString>
#include <QStringList>

namespace Orvane {

/// The host kit's own texts (questions, names of steps, errors) in the user's language.
///
///     QApplication application(argc, argv);
///     HostKitTexts::Install();
///
/// They are in "orvane.<language>.ts", Qt Linguist documents that are installed with the component. A program
/// may bring further languages, in a folder of its own. All functions need the application object.
namespace HostKitTexts {

/// Shows the texts of the first of the locale's languages that has usable ones: installs a translator,
/// which the application owns, in place of the one of an earlier call. Call it before windows are made,
/// or let them show their texts again on QEvent::LanguageChange. folder: searched first, may be empty.
/// Returns the language, "de" for example; empty if the texts stay English. Never raises: a damaged file
/// counts as missing.
QString Install(const QLocale& locale = QLocale(), const QString& folder = {});

/// The language that Install would choose; empty for English. Nothing is installed.
QString Language(const QLocale& locale = QLocale(), const QString& folder = {});

/// Where Install looks, in this order: the folder, if it is not empty; "translations" and
/// "../share/orvane/translations" relative to the program; then the places where these are installed
/// beside a component: the one that was loaded last, and any in StyleEditorPlugin::SearchFolders.
QStringList SearchFolders(const QString& folder = {});

} // namespace HostKitTexts

} // namespace Orvane
