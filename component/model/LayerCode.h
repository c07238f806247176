// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

namespace Orvane {

class IStyleEditorClient;

/// Stores the number with which the text begins as the layer's code, as a double. Raises what the host and
/// its database raise, and 6 (overflow) as LeadingNumber does. A layer that does not exist is left out.
void SetLayerCode(IStyleEditorClient& client, qint32 layerID, const QString& codeText);

/// The number with which the text begins: a sign, digits, "." as separator, an exponent. Blanks before it are
/// skipped, what follows is ignored: 12 for "12abc", 0 where there is no number. Raises 6 (overflow) beyond
/// the range of a double.
double LeadingNumber(const QString& text);

} // namespace Orvane
