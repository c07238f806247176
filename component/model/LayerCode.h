// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

namespace Orvane {

class IStyleEditorClient;

/// Stores the number at the start of the text as the layer's code, as a double. Raises what the host and its
/// database raise, and 6 (overflow) as LeadingNumber does. Does nothing for a layer that does not exist.
void SetLayerCode(IStyleEditorClient& client, qint32 layerID, const QString& codeText);

/// The number at the start of the text: a sign, digits, "." as decimal separator, an exponent. Leading blanks
/// are skipped and the text after the number is ignored: 12 for "12abc", 0 if there is no number. Raises 6
/// (overflow) beyond the range of a double.
double LeadingNumber(const QString& text);

} // namespace Orvane
