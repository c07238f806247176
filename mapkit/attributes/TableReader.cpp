// SPDX-License-Identifier: MIT
#include "mapkit/attributes/TableReader.h"

#include "mapkit/common/Progress.h"
#include "mapkit/files/ReadingBound.h"

#include <utility>

namespace Orvane {

namespace {

// Opening takes long for some formats, and so is done once.
TableSource& SourceIn(std::unique_ptr<TableSource>& opened, const LayerSource& source)
{
    if (!opened)
        opened = std::make_unique<TableSource>(source);
    return *opened;
}

} // namespace

TableReader::TableReader(LayerSource source, QObject* parent)
    : QObject(parent), m_source(std::move(source)), m_reading(std::make_shared<Progress>()),
      m_rowSource(std::make_shared<std::unique_ptr<TableSource>>()),
      m_tableSource(std::make_shared<std::unique_ptr<TableSource>>())
{
    m_rowsPool.setMaxThreadCount(1);
    m_tablePool.setMaxThreadCount(1);
}

TableReader::~TableReader()
{
    for (const Shared& running : {m_reading, m_opening, m_sorting, m_finding}) {
        if (running)
            running->Cancel();
    }
    m_rowsPool.waitForDone();
    m_tablePool.waitForDone();
}

void TableReader::Open()
{
    Open(m_source);
}

void TableReader::Open(LayerSource source)
{
    Cancel();
    m_reading->Cancel();
    m_reading = std::make_shared<Progress>();
    m_rowSource = std::make_shared<std::unique_ptr<TableSource>>();
    m_tableSource = std::make_shared<std::unique_ptr<TableSource>>();
    m_source = std::move(source);
    RunWithAll(Task::Opening, [this](TableSource& table, const Shared& progress) {
        return ReadTable(table, progress);
    });
}

// On the pool's thread.
TableReader::Answer TableReader::ReadTable(TableSource& table, const Shared& progress)
{
    Deliver(Task::Opening, progress, [this, columns = table.Columns(), count = table.KnownCount()] {
        emit Opened(columns, count);
    });
    table.ReadIDs(*progress, [&](std::vector<qint64> ids) {
        Deliver(Task::Opening, progress, [this, ids = std::move(ids)] { emit IDsRead(ids); });
    });
    return [this] { emit IDsComplete(); };
}

void TableReader::ReadRows(std::vector<qint64> ids)
{
    Run(m_rowsPool, Task::None, m_reading,
        [this, ids = std::move(ids), source = m_source, opened = m_rowSource,
         progress = m_reading]() -> Answer {
            TableSource& table = SourceIn(*opened, source);
            const auto rows = std::make_shared<const TableSource::RowsByID>(table.Rows(ids, *progress));
            return [this, ids, rows] { emit RowsRead(ids, rows); };
        });
}

void TableReader::Sort(int column, Qt::SortOrder direction, const QLocale& locale)
{
    RunWithAll(
        Task::Sorting,
        [this, column, direction, locale](TableSource& table, const Shared& progress) -> Answer {
            return [this, ids = table.Sorted(column, direction, locale, *progress)] { emit Sorted(ids); };
        });
}

void TableReader::Find(const TableFind& find)
{
    RunWithAll(Task::Finding, [this, find](TableSource& table, const Shared& progress) -> Answer {
        return [this, ids = table.Find(find, *progress)] { emit Found(ids); };
    });
}

void TableReader::Cancel()
{
    Drop(m_opening);
    Drop(m_sorting);
    Drop(m_finding);
}

void TableReader::Drop(Shared& running)
{
    if (!running)
        return;
    running->Cancel();
    running.reset();
    emit TaskChanged();
}

TableReader::Task TableReader::Current() const
{
    if (m_opening)
        return Task::Opening;
    if (m_sorting)
        return Task::Sorting;
    return m_finding ? Task::Finding : Task::None;
}

double TableReader::Done() const
{
    const Shared& running = m_opening ? m_opening : m_sorting ? m_sorting : m_finding;
    return running ? running->Done() : 1;
}

TableReader::Shared& TableReader::Running(Task task)
{
    switch (task) {
    case Task::Opening:
        return m_opening;
    case Task::Sorting:
        return m_sorting;
    case Task::Finding:
        return m_finding;
    case Task::None:
        break;
    }
    return m_reading;
}

void TableReader::RunWithAll(Task task, Work work)
{
    Shared& running = Running(task);
    if (running)
        running->Cancel();
    running = std::make_shared<Progress>();
    Run(m_tablePool, task, running,
        [source = m_source, opened = m_tableSource, progress = running, work = std::move(work)] {
            return work(SourceIn(*opened, source), progress);
        });
    emit TaskChanged();
}

void TableReader::Run(QThreadPool& pool, Task task, const Shared& progress, std::function<Answer()> work)
{
    pool.start([this, task, progress, work = std::move(work)] {
        const ReadingBound untilCancelled(progress->CancelledFlag());
        Answer answer;
        try {
            progress->StopIfCancelled();
            answer = work();
        } catch (const Cancelled&) {
            return;
        } catch (const std::exception& error) {
            answer = [this, task, reason = QString::fromUtf8(error.what())] { emit Failed(task, reason); };
        }
        Deliver(task, progress, [this, progress, answer = std::move(answer)] {
            Finish(progress);
            answer();
        });
    });
}

void TableReader::Deliver(Task task, const Shared& progress, Answer answer)
{
    QMetaObject::invokeMethod(
        this,
        [this, task, progress, answer = std::move(answer)] {
            try {
                if (!progress->IsCancelled())
                    answer();
            } catch (const std::exception& error) { // of the receivers, for example no memory
                emit Failed(task, QString::fromUtf8(error.what()));
            }
        },
        Qt::QueuedConnection);
}

void TableReader::Finish(const Shared& progress)
{
    for (Shared* running : {&m_opening, &m_sorting, &m_finding}) {
        if (*running == progress) {
            running->reset();
            emit TaskChanged();
        }
    }
}

} // namespace Orvane
