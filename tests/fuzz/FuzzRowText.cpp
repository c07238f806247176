// SPDX-License-Identifier: MIT
#include "fuzz/FuzzInput.h"
#include "fuzz/FuzzTargets.h"
#include "store/postgres/link/ArrayText.h"
#include "store/postgres/link/RowText.h"

#include <QByteArrayList>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Orvane::Testing {

namespace {

using RowValues = std::vector<std::optional<std::string>>;

// As the server writes a row.
std::string WrittenRow(const RowValues& values)
{
    std::string text = "(";
    for (size_t number = 0; number < values.size(); ++number) {
        const std::optional<std::string>& value = values[number];
        if (number > 0)
            text += ',';
        if (!value)
            continue;
        text += '"';
        for (const char letter : *value)
            text += letter == '"' || letter == '\\' ? std::string(2, letter) : std::string(1, letter);
        text += '"';
    }
    return text + ')';
}

// How many values an array's text has, as the server reads it.
qsizetype ValuesIn(const QByteArray& text)
{
    qsizetype count = 1;
    bool isQuoted = false;
    for (qsizetype place = 1; place < text.size() - 1; ++place) {
        const char letter = text.at(int(place));
        if (isQuoted && letter == '\\')
            ++place;
        else if (letter == '"')
            isQuoted = !isQuoted;
        else if (letter == ',' && !isQuoted)
            ++count;
    }
    return isQuoted ? 0 : count;
}

} // namespace

int FuzzRowText(const uint8_t* data, size_t size)
{
    const QByteArray bytes = BytesIn(data, size);
    RowValues values;
    if (!ReadRowText({bytes.constData(), size_t(bytes.size())}, values))
        return 0;
    Require(!values.empty(), "a row has a value");
    const std::string written = WrittenRow(values);
    RowValues again{std::nullopt, "old"};
    Require(ReadRowText(written, again) && again == values, "a row is read as it is written");
    return 0;
}

int FuzzArrayText(const uint8_t* data, size_t size)
{
    const QByteArrayList lines = BytesIn(data, size).split('\n');
    ArrayText array;
    for (const QByteArray& line : lines)
        array.Append(std::string_view(line.constData(), size_t(line.size())));
    Require(ValuesIn(array.Text()) == lines.size(), "a text in an array ends where it ends");
    return 0;
}

} // namespace Orvane::Testing
