// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

namespace Orvane::Testing {

/// The texts in the argument of that number (from 0) of every call of the functions in a piece of C++ code,
/// with adjacent literals joined and escapes resolved. Comments are ignored; both texts of "b ? "x" : "y""
/// count.
QStringList TextsInCalls(const QString& code, const QStringList& functions, int argument = 0);

/// The translatable texts of a Designer form: those not marked notr="true".
QStringList TextsInForm(const QByteArray& form);

/// English texts with the files that contain them, relative to the source tree. Texts without a letter, such
/// as "<<", are left out: there is nothing to translate.
using TextPlaces = QMap<QString, QStringList>;

/// The texts of the component: TranslateMsg, QT_TR_NOOP, forms, and descriptions of errors.
TextPlaces ComponentTexts();

/// The texts of hosts built from files/, store/, hostkit/, mapkit/ and shell/: tr, translate,
/// QT_TR_NOOP, QT_TRANSLATE_NOOP and forms.
TextPlaces HostTexts();

} // namespace Orvane::Testing
