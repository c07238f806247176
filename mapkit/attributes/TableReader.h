// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/attributes/TableSource.h"

#include <QObject>
#include <QThreadPool>

#include <functional>
#include <memory>

namespace Orvane {

/// Reads the table of one layer in the background: one thread reads the rows that are in sight, another one
/// what needs all rows, so that rows are shown while the table is sorted.
///
///     TableReader reader(source);
///     connect(&reader, &TableReader::IDsRead, ...);
///     reader.Open();
///
/// All members are for the thread that made the object, and its signals are emitted there; none raises.
class TableReader : public QObject
{
    Q_OBJECT
public:
    explicit TableReader(LayerSource source, QObject* parent = nullptr);
    /// Cancels what is read and waits for its end.
    ~TableReader() override;

    const LayerSource& Source() const { return m_source; }

    /// Reads columns and IDs; what was asked for earlier is dropped. Emits Opened, IDsRead once or more, and
    /// IDsComplete.
    void Open();
    /// Opens another source, or the same one after it has changed.
    void Open(LayerSource source);
    /// Reads these rows; emits RowsRead.
    void ReadRows(std::vector<qint64> ids);
    /// Sorts all rows; emits Sorted. An earlier request that is not finished is dropped.
    void Sort(int column, Qt::SortOrder direction, const QLocale& locale);
    /// Looks through all rows; emits Found. An earlier request that is not finished is dropped.
    void Find(const TableFind& find);

    /// Drops a request to sort.
    void CancelSort() { Drop(m_sorting); }
    /// Drops a request to find.
    void CancelFind() { Drop(m_finding); }
    /// Drops all requests but those for rows.
    void Cancel();

    /// What needs all rows.
    enum class Task { None, Opening, Sorting, Finding };
    /// What is being done now, or next.
    Task Current() const;
    /// How much of it is done, 0 to 1.
    double Done() const;

signals:
    /// The source is open. knownCount: the number of rows, -1 if it is not known yet.
    void Opened(const std::vector<Orvane::TableColumn>& columns, qint64 knownCount);
    /// The next IDs in the source's order.
    void IDsRead(const std::vector<qint64>& ids);
    void IDsComplete();
    /// Some of the rows that were asked for; one without attributes was not found.
    void RowsRead(
        const std::vector<qint64>& asked, const std::shared_ptr<const Orvane::TableSource::RowsByID>& rows);
    void Sorted(const std::vector<qint64>& ids);
    void Found(const std::vector<qint64>& ids);
    /// Something could not be read. task: for what it was read; None for single rows.
    void Failed(Orvane::TableReader::Task task, const QString& reason);
    /// Current has changed.
    void TaskChanged();

private:
    using Answer = std::function<void()>;
    using Shared = std::shared_ptr<Progress>;
    using Opening = std::shared_ptr<std::unique_ptr<TableSource>>; // opened by the pool that uses it
    using Work = std::function<Answer(TableSource& table, const Shared& progress)>;

    void RunWithAll(Task task, Work work);
    void Run(QThreadPool& pool, Task task, const Shared& progress, std::function<Answer()> work);
    Answer ReadTable(TableSource& table, const Shared& progress);
    void Deliver(Task task, const Shared& progress, Answer answer);
    Shared& Running(Task task);
    void Finish(const Shared& progress);
    void Drop(Shared& running);

    LayerSource m_source;
    QThreadPool m_rowsPool;
    QThreadPool m_tablePool;
    Shared m_reading; // of rows; never null
    Opening m_rowSource; // of the pool of rows
    Opening m_tableSource; // of the other pool
    Shared m_opening; // these are null while there is nothing to do
    Shared m_sorting;
    Shared m_finding;
};

} // namespace Orvane
