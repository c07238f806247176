// SPDX-License-Identifier: MIT
#include "fuzz/FuzzInput.h"
#include "fuzz/FuzzTargets.h"
#include "messages/LinguistReader.h"
#include "messages/MessageCatalogue.h"

#include <QBuffer>

namespace Orvane::Testing {

int FuzzMessages(const uint8_t* data, size_t size)
{
    QByteArray document = BytesIn(data, size);
    const auto entries = ReadLinguistDocument(document).value_or(LinguistEntries());
    QBuffer device(&document);
    device.open(QIODevice::ReadOnly);
    const MessageCatalogue catalogue = MessageCatalogue::FromDevice(device);
    bool anyFinished = false;
    for (const LinguistEntry& entry : entries) {
        if (!entry.IsFinished())
            continue;
        anyFinished = true;
        Require(catalogue.Find(entry.source, entry.context).has_value(), "a finished entry is found");
        Require(catalogue.Find(entry.source).has_value(), "a finished entry is found in any context");
    }
    Require(catalogue.IsEmpty() != anyFinished, "a catalogue holds finished entries only");
    return 0;
}

} // namespace Orvane::Testing
