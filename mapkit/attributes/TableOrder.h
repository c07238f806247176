// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QLocale>
#include <QString>
#include <QVariant>

#include <vector>

namespace Orvane {

class Progress;

/// Sorts feature IDs by the values of one column. Values are added in the source's order, which stays among
/// equal ones; null comes last, whichever way is up.
///
///     TableOrder order;
///     order.Add(featureID, value);
///     ids = order.Sorted(Qt::AscendingOrder, locale, progress);
class TableOrder
{
public:
    /// value: as in TableRow; all of them of one column.
    void Add(qint64 featureID, const QVariant& value);

    /// Numbers, dates and flags by size, before texts; texts as that language sorts them. Raises Cancelled.
    std::vector<qint64>
    Sorted(Qt::SortOrder direction, const QLocale& locale, const Progress& progress) const;

    /// The memory in use, in bytes, roughly.
    double Bytes() const { return m_bytes; }

private:
    struct Entry {
        qint64 featureID;
        double key; ///< a number, or the index of a text
    };
    using Entries = std::vector<Entry>;

    std::vector<double> RanksOfTexts(const QLocale& locale, const Progress& progress) const;

    Entries m_numbers;
    Entries m_texts;
    std::vector<qint64> m_nulls;
    QHash<QString, int> m_indexes; // of the texts
    std::vector<QString> m_differentTexts;
    double m_bytes = 0;
};

} // namespace Orvane
