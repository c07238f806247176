// SPDX-License-Identifier: MIT
#include "mapkit/attributes/WordMatch.h"

#include "mapkit/attributes/FieldCells.h"
#include "mapkit/attributes/TableSource.h"

#include <algorithm>
#include <ogrsf_frmts.h>

namespace Orvane {

namespace {

QStringList WordsOf(const QString& text)
{
    QStringList words = text.simplified().split(QLatin1Char(' '));
    words.removeAll(QString());
    return words;
}

void RemoveContained(QStringList& missing, const QString& text)
{
    missing.erase(
        std::remove_if(
            missing.begin(), missing.end(),
            [&](const QString& word) { return text.contains(word, Qt::CaseInsensitive); }),
        missing.end());
}

} // namespace

WordMatch::WordMatch(const TableFind& find, const std::vector<TableColumn>& columns)
    : m_columns(columns), m_locale(find.locale), m_words(WordsOf(find.words)),
      m_first(find.column < 0 ? 0 : find.column),
      m_end(find.column < 0 ? int(columns.size()) : find.column + 1)
{
}

bool WordMatch::Matches(OGRFeature& feature) const
{
    QStringList missing = m_words;
    for (int i = m_first; i < m_end && !missing.isEmpty(); ++i) {
        if (feature.IsFieldSetAndNotNull(i))
            RemoveFound(missing, feature, i);
    }
    return missing.isEmpty();
}

void WordMatch::RemoveFound(QStringList& missing, OGRFeature& feature, int index) const
{
    RemoveContained(missing, QString::fromUtf8(feature.GetFieldAsString(index)));
    const CellKind kind = m_columns[size_t(index)].kind;
    if (!missing.isEmpty() && kind != CellKind::Text)
        RemoveContained(missing, CellText(CellOf(feature, index, kind), m_locale));
}

} // namespace Orvane
