// SPDX-License-Identifier: MIT
#include "store/postgres/NewsGathering.h"

#include <charconv>
#include <optional>
#include <utility>

namespace Orvane {

namespace {

constexpr int MostLayers = 5000; // to follow one by one

template <typename Number> std::optional<Number> WholeNumber(std::string_view text)
{
    Number number = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stop != end)
        return std::nullopt;
    return number;
}

// The text up to the next comma, which is taken away with it.
std::string_view NextItem(std::string_view& list)
{
    const size_t comma = list.find(',');
    const std::string_view item = list.substr(0, comma);
    list.remove_prefix(comma == std::string_view::npos ? list.size() : comma + 1);
    return item;
}

} // namespace

qint64 NewsGathering::AddNotice(const QByteArray& payload)
{
    const std::string_view text(payload.constData(), size_t(payload.size()));
    const size_t first = text.find(' ');
    const size_t last = text.rfind(' ');
    const bool hasParts = first != std::string_view::npos && first < last;
    const std::optional<qint64> id = hasParts ? WholeNumber<qint64>(text.substr(0, first)) : std::nullopt;
    if (id)
        Add(text.substr(first + 1, last - first - 1), text.substr(last + 1));
    else
        AddAll();
    return id.value_or(0);
}

void NewsGathering::Add(std::string_view table, std::string_view ids)
{
    if (table != "layers" || ids.empty())
        return AddAll();
    while (!ids.empty()) {
        const std::optional<qint32> layerID = WholeNumber<qint32>(NextItem(ids));
        if (!layerID || m_change.layerIDs.size() >= MostLayers)
            return AddAll();
        m_change.layerIDs.insert(*layerID);
    }
}

ForeignChange NewsGathering::Take()
{
    return std::exchange(m_change, {});
}

} // namespace Orvane
