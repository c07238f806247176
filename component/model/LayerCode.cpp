// SPDX-License-Identifier: MIT
#include "component/model/LayerCode.h"

#include "component/model/LayerCursors.h"

#include <OrvaneShellLib/IStyleEditorClient.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <charconv>

namespace Orvane {

namespace {

bool BeginsUnsignedNumber(const QByteArray& text)
{
    return !text.isEmpty() && (text.front() == '.' || (text.front() >= '0' && text.front() <= '9'));
}

// from_chars also accepts "inf" and "nan", but does not accept a leading "+".
double LeadingUnsignedNumber(const QByteArray& text)
{
    if (!BeginsUnsignedNumber(text))
        return 0;
    double number = 0;
    const auto result = std::from_chars(text.begin(), text.end(), number);
    if (result.ec != std::errc::result_out_of_range)
        return number;
    throw RunTimeError(ErrorNumber::Overflow, QStringLiteral("Overflow"));
}

} // namespace

double LeadingNumber(const QString& text)
{
    QByteArray digits = text.trimmed().toLatin1();
    const bool negative = digits.startsWith('-');
    if (negative || digits.startsWith('+'))
        digits.remove(0, 1);
    const double number = LeadingUnsignedNumber(digits);
    return negative && number != 0 ? -number : number;
}

void SetLayerCode(IStyleEditorClient& client, qint32 layerID, const QString& codeText)
{
    const auto layers = OpenLayersByID(client);
    if (!SeekID(*layers, layerID))
        return;
    client.BeginLayerEdit(*layers);
    layers->SetField("Code", LeadingNumber(codeText));
    layers->Update();
}

} // namespace Orvane
