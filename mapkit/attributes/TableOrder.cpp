// SPDX-License-Identifier: MIT
#include "mapkit/attributes/TableOrder.h"

#include "mapkit/common/Progress.h"

#include <QCollator>
#include <QDateTime>

#include <algorithm>
#include <numeric>
#include <optional>

namespace Orvane {

namespace {

constexpr double BytesOfText = 3 * sizeof(QString) + 100; // in both places, with its key while sorting

std::optional<double> SizeOf(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::LongLong:
    case QMetaType::Double:
    case QMetaType::Bool:
        return value.toDouble();
    case QMetaType::QDate:
        return double(value.toDate().toJulianDay());
    case QMetaType::QTime:
        return double(value.toTime().msecsSinceStartOfDay());
    case QMetaType::QDateTime:
        return double(value.toDateTime().toMSecsSinceEpoch());
    default:
        return std::nullopt;
    }
}

} // namespace

void TableOrder::Add(qint64 featureID, const QVariant& value)
{
    m_bytes += sizeof(Entry);
    if (!value.isValid())
        return m_nulls.push_back(featureID);
    if (const std::optional<double> size = SizeOf(value))
        return m_numbers.push_back({featureID, *size});
    const QString text = value.toString();
    auto known = m_indexes.constFind(text);
    if (known == m_indexes.constEnd()) {
        known = m_indexes.insert(text, int(m_differentTexts.size()));
        m_differentTexts.push_back(text);
        m_bytes += BytesOfText + 4 * double(text.size());
    }
    m_texts.push_back({featureID, double(*known)});
}

// Texts repeat, so that each different one is compared only once with its neighbours.
std::vector<double> TableOrder::RanksOfTexts(const QLocale& locale, const Progress& progress) const
{
    const QCollator collator(locale);
    std::vector<QCollatorSortKey> keys;
    keys.reserve(m_differentTexts.size());
    for (const QString& text : m_differentTexts) {
        progress.StopIfCancelled();
        keys.push_back(collator.sortKey(text));
    }
    std::vector<size_t> order(keys.size());
    std::iota(order.begin(), order.end(), size_t(0));
    std::sort(order.begin(), order.end(), [&](size_t a, size_t b) {
        progress.StopIfCancelled();
        return keys[a].compare(keys[b]) < 0;
    });
    std::vector<double> ranks(order.size());
    double rank = 0;
    for (size_t i = 0; i < order.size(); ++i) {
        if (i > 0 && keys[order[i - 1]].compare(keys[order[i]]) != 0)
            ++rank;
        ranks[order[i]] = rank;
    }
    return ranks;
}

std::vector<qint64>
TableOrder::Sorted(Qt::SortOrder direction, const QLocale& locale, const Progress& progress) const
{
    Entries texts = m_texts;
    const std::vector<double> ranks = RanksOfTexts(locale, progress);
    for (Entry& entry : texts)
        entry.key = ranks[size_t(entry.key)];
    Entries numbers = m_numbers;
    std::vector<qint64> ids;
    ids.reserve(numbers.size() + texts.size() + m_nulls.size());
    const auto append = [&](Entries& entries) {
        std::stable_sort(entries.begin(), entries.end(), [&](const Entry& a, const Entry& b) {
            progress.StopIfCancelled();
            return direction == Qt::AscendingOrder ? a.key < b.key : b.key < a.key;
        });
        for (const Entry& entry : entries)
            ids.push_back(entry.featureID);
    };
    append(direction == Qt::AscendingOrder ? numbers : texts);
    append(direction == Qt::AscendingOrder ? texts : numbers);
    ids.insert(ids.end(), m_nulls.begin(), m_nulls.end());
    return ids;
}

} // namespace Orvane
