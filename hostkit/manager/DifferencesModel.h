// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/schemes/SchemeComparison.h"

#include <QAbstractTableModel>
#include <QStringList>

#include <functional>
#include <vector>

namespace Orvane {

class SchemeValueTexts;

/// What differs between two sides as a table: layer, property, the value of the first side and that of the
/// second. Lines that do not fit the filter are left out.
class DifferencesModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Layer, Property, From, To, ColumnCount };

    using NameOf = std::function<QString(qint32 layerID)>;

    /// texts: not owned; outlives this object. nameOf: the listed name of a layer; raises nothing.
    DifferencesModel(const SchemeValueTexts& texts, NameOf nameOf, QObject* parent = nullptr);

    void Show(std::vector<SchemeDifference> differences);
    /// Keeps the lines of which layer or property contain each of the words, whatever their case.
    void SetFilter(const QString& words);
    /// Keeps the lines of these properties. WholeScheme: also those of layers that one side does not have.
    void SetParts(SchemeParts parts);

    /// How many differences there are, with those that the filter leaves out.
    std::size_t Count() const { return m_differences.size(); }
    const SchemeDifference& At(int row) const { return m_differences[m_shown.at(std::size_t(row))]; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void Filter();
    bool IsOfParts(const SchemeDifference& difference) const;
    static QString PropertyText(const SchemeDifference& difference);
    QString Text(const SchemeDifference& difference, int column) const;
    static QVariant Swatch(const SchemeDifference& difference, int column);

    const SchemeValueTexts& m_texts;
    NameOf m_nameOf;
    std::vector<SchemeDifference> m_differences;
    std::vector<std::size_t> m_shown; // positions of the lines that fit the filter
    QStringList m_words;
    SchemeParts m_parts = WholeScheme;
};

} // namespace Orvane
