// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/attributes/TableCell.h"

#include <QStringList>

class OGRFeature;

namespace Orvane {

struct TableFind;

/// Whether a row contains each word of a find, in any case: as the source writes the value, or as it is
/// shown.
class WordMatch
{
public:
    /// columns: of the table; not owned, outlives this object.
    WordMatch(const TableFind& find, const std::vector<TableColumn>& columns);

    /// Null contains nothing.
    bool Matches(OGRFeature& feature) const;

private:
    void RemoveFound(QStringList& missing, OGRFeature& feature, int index) const;

    const std::vector<TableColumn>& m_columns;
    QLocale m_locale;
    QStringList m_words;
    int m_first = 0; // of the columns that are looked into
    int m_end = 0; // one past the last one
};

} // namespace Orvane
