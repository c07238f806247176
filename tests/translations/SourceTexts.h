// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

namespace Orvane::Testing {

/// The texts in the argument of that number (from 0) of every call of the functions in a piece of C++ code,
/// with adjacent literals joined and escapes resolved. Comments are passed over; of "b ? "x" : "y"" both
/// count.
QStringList TextsInCalls(const QString& code, const QStringList& functions, int argument = 0);

/// The translatable texts of a Designer form: those not marked notr="true".
QStringList TextsInForm(const QByteArray& form);

/// English texts with the files, relative to the source tree, where they stand. Texts without a letter, such
/// as
/// "<<", are left out: there is nothing to translate.
using TextPlaces = QMap<QString, QStringList>;

/// What the component shows: TranslateMsg, QT_TR_NOOP, forms, and descriptions of errors.
TextPlaces ComponentTexts();

/// What hosts made of store/, hostkit/, mapkit/ and shell/ show: tr, translate, QT_TR_NOOP, QT_TRANSLATE_NOOP
/// and forms.
TextPlaces HostTexts();

} // namespace Orvane::Testing
