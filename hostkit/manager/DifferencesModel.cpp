// SPDX-License-Identifier: MIT
#include "hostkit/manager/DifferencesModel.h"

#include "hostkit/manager/SchemeValueTexts.h"
#include "hostkit/schemes/SchemeColumns.h"
#include "messages/NameInText.h"

#include <QPainter>
#include <QPixmap>

#include <algorithm>

namespace Orvane {

namespace {

// With a frame, so that it shows on a ground of its own colour.
QPixmap SwatchOf(const QColor& colour)
{
    constexpr int side = 32;
    QPixmap swatch(side, side);
    swatch.fill(Qt::gray);
    QPainter(&swatch).fillRect(swatch.rect().adjusted(2, 2, -2, -2), colour);
    swatch.setDevicePixelRatio(2);
    return swatch;
}

} // namespace

DifferencesModel::DifferencesModel(const SchemeValueTexts& texts, NameOf nameOf, QObject* parent)
    : QAbstractTableModel(parent), m_texts(texts), m_nameOf(std::move(nameOf))
{
}

void DifferencesModel::Show(std::vector<SchemeDifference> differences)
{
    beginResetModel();
    m_differences = std::move(differences);
    Filter();
    endResetModel();
}

void DifferencesModel::SetFilter(const QString& words)
{
    beginResetModel();
    m_words = words.split(u' ', Qt::SkipEmptyParts);
    Filter();
    endResetModel();
}

void DifferencesModel::SetParts(SchemeParts parts)
{
    beginResetModel();
    m_parts = parts;
    Filter();
    endResetModel();
}

int DifferencesModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_shown.size());
}

int DifferencesModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant DifferencesModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const SchemeDifference& difference = At(index.row());
    if (role == Qt::DisplayRole)
        return Text(difference, index.column());
    if (role == Qt::DecorationRole)
        return Swatch(difference, index.column());
    return {};
}

QVariant DifferencesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (section) {
    case Layer:
        return tr("Layer");
    case Property:
        return tr("Property");
    case From:
        return tr("From");
    case To:
        return tr("To");
    default:
        return {};
    }
}

// Lines of one layer follow each other.
void DifferencesModel::Filter()
{
    m_shown.clear();
    m_shown.reserve(m_differences.size());
    QString name;
    for (std::size_t line = 0; line < m_differences.size(); ++line) {
        const SchemeDifference& difference = m_differences[line];
        if (!m_words.isEmpty() && (line == 0 || m_differences[line - 1].layerID != difference.layerID))
            name = m_nameOf(difference.layerID) + u'\n';
        const auto fits = [&](const QString& word) {
            return name.contains(word, Qt::CaseInsensitive)
                || PropertyText(difference).contains(word, Qt::CaseInsensitive);
        };
        if (IsOfParts(difference) && std::all_of(m_words.begin(), m_words.end(), fits))
            m_shown.push_back(line);
    }
}

bool DifferencesModel::IsOfParts(const SchemeDifference& difference) const
{
    if (m_parts == WholeScheme)
        return true;
    return difference.kind == SchemeDifference::Kind::Value
        && m_parts.testFlag(PartOf(SchemeColumns::All.at(difference.column)));
}

QString DifferencesModel::PropertyText(const SchemeDifference& difference)
{
    return difference.kind == SchemeDifference::Kind::Value ? SchemeValueTexts::Property(difference.column)
                                                            : tr("All");
}

QString DifferencesModel::Text(const SchemeDifference& difference, int column) const
{
    using Kind = SchemeDifference::Kind;
    if (column == Layer)
        return NameInText(m_nameOf(difference.layerID));
    if (column == Property)
        return PropertyText(difference);
    if (difference.kind == Kind::Value)
        return m_texts.Text(difference.column, column == From ? difference.from : difference.to);
    const bool isMissing = (column == From) == (difference.kind == Kind::NotInFirst);
    return isMissing ? tr("not in the scheme") : QString();
}

QVariant DifferencesModel::Swatch(const SchemeDifference& difference, int column)
{
    if (difference.kind != SchemeDifference::Kind::Value || (column != From && column != To))
        return {};
    const auto colour
        = SchemeValueTexts::Colour(difference.column, column == From ? difference.from : difference.to);
    return colour ? QVariant(SwatchOf(*colour)) : QVariant();
}

} // namespace Orvane
