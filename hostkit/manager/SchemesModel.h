// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/common/NaturalOrder.h"
#include "hostkit/schemes/SchemeDetails.h"

#include <QAbstractTableModel>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

namespace Orvane {

/// The schemes of a map as a table. How many layers differ from each is counted one by one, when CountNext is
/// called. Rows stand in the user's order, or sorted by a column; in the user's order they can be dragged to
/// another place.
class SchemesModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Name, Differing, Current, Holds, Saved, AtOpening, ColumnCount };

    /// Counts the layers that differ from a scheme; may raise.
    using Count = std::function<qsizetype(const QString& scheme)>;
    /// Whether Show forgets the numbers.
    enum class Counts { Forget, Keep };

    explicit SchemesModel(Count count, QObject* parent = nullptr);

    /// Lists these schemes, which are in the user's order. Keep: a scheme keeps its number, also under
    /// another name.
    void Show(const std::vector<SchemeDetails>& schemes, Counts counts = Counts::Forget);

    /// All names in the user's order, also if the table is sorted.
    QStringList Names() const;
    QString NameAt(int row) const { return At(row).details.name; }
    const SchemeDetails& DetailsAt(int row) const { return At(row).details; }
    /// names: of schemes in this model.
    std::vector<SchemeDetails> DetailsOf(const QStringList& names) const;
    /// The names that these schemes have now, also after a renaming; without those that are gone.
    QStringList NamesOf(const std::vector<SchemeDetails>& schemes) const;
    /// -1 if there is none of that name.
    int RowOf(const QString& name) const;
    QString CurrentName() const;

    /// Whether the table can be sorted by that column.
    static bool IsSortable(int column) { return column == Name || column == Holds || column == Saved; }
    /// A text that is about as long as any other in that column, Holds or Saved.
    static QString LongText(int column);
    /// Sorts the rows; nothing: the user's order.
    void SortBy(std::optional<Column> column, Qt::SortOrder order = Qt::AscendingOrder);
    bool IsInUsersOrder() const { return !m_sorted; }
    /// The column and the direction of SortBy.
    std::optional<Column> SortedBy() const { return m_sorted; }
    Qt::SortOrder Order() const { return m_order; }

    /// Counts for the first scheme that has no number yet; false if there is none. If that fails, the scheme
    /// gets a question mark, and the error as its tool tip.
    bool CountNext();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    bool canDropMimeData(
        const QMimeData* data, Qt::DropAction action, int row, int column,
        const QModelIndex& parent) const override;
    /// Changes nothing itself: Dropped says what the user wants.
    bool dropMimeData(
        const QMimeData* data, Qt::DropAction action, int row, int column,
        const QModelIndex& parent) override;

Q_SIGNALS:
    /// The user wants these schemes before the one in that row, or at the end.
    void Dropped(const QStringList& names, int row);

private:
    struct Scheme {
        SchemeDetails details;
        std::optional<qsizetype> differing;
        QString error; // why the layers could not be counted
    };

    const Scheme& At(int row) const { return m_schemes.at(m_rows.at(std::size_t(row))); }
    void Arrange();
    bool IsBefore(const Scheme& a, const Scheme& b) const;
    static QString Text(const Scheme& scheme, int column);
    static QString SpokenText(const Scheme& scheme, int column);
    QByteArray Origin() const;

    Count m_count;
    std::vector<Scheme> m_schemes; // in the user's order
    std::vector<std::size_t> m_rows; // positions in m_schemes
    std::optional<Column> m_sorted;
    Qt::SortOrder m_order = Qt::AscendingOrder;
    QCollator m_naturalOrder = NaturalOrder();
};

} // namespace Orvane
