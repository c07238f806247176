// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string>
#include <vector>

namespace Orvane {

/// Appends the text to `folded` in the form in which texts are compared by a find: without case, and without
/// accents, whether they are part of a letter or follow it.
void AppendFolded(std::u16string& folded, const QString& text);

/// The text in that form.
QString FoldedText(const QString& text);

/// For each character of FoldedText(text), the place of the character of the text that it stands for.
std::vector<int> FoldedPlaces(const QString& text);

} // namespace Orvane
