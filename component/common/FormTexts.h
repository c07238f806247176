// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace Orvane {

/// Gives the text to show for an English text.
using TextTranslation = std::function<QString(const QString& english)>;

/// Passes every text of the form, its widgets and its actions through the translation, and keeps the English
/// beside each in dynamic properties. See MessageTable::TranslateForm for which texts these are.
void TranslateFormTexts(QWidget& form, const TextTranslation& translation);

} // namespace Orvane
