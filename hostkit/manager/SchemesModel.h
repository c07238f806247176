// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

namespace Orvane {

/// The schemes of a map as a table: name, how many layers differ from it, and whether it is the current one.
/// The numbers are counted one by one, when CountNext is called.
class SchemesModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Name, Differing, Current, ColumnCount };

    /// Counts the layers that differ from a scheme; may raise.
    using Count = std::function<qsizetype(const QString& scheme)>;

    explicit SchemesModel(Count count, QObject* parent = nullptr);

    /// Lists these schemes; all numbers are counted again.
    void Show(const QStringList& names, const QString& current);

    QString NameAt(int row) const { return m_schemes.at(std::size_t(row)).name; }
    /// -1 if there is none of that name.
    int RowOf(const QString& name) const;
    const QString& CurrentName() const { return m_current; }

    /// Counts for the first scheme that has no number yet; false if there is none. If that fails, the scheme
    /// gets a question mark, and the error as its tool tip.
    bool CountNext();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Scheme {
        QString name;
        std::optional<qsizetype> differing;
        QString error; // why the layers could not be counted
    };

    QString Text(const Scheme& scheme, int column) const;
    QString SpokenText(const Scheme& scheme, int column) const;

    Count m_count;
    std::vector<Scheme> m_schemes;
    QString m_current;
};

} // namespace Orvane
