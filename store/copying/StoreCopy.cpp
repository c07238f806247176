// SPDX-License-Identifier: MIT
#include "store/copying/StoreCopy.h"

#include "store/ILayerStore.h"
#include "store/StorePlace.h"
#include "store/StoreTexts.h"
#include "store/copying/FittedValues.h"
#include "store/shared/ITableTransfer.h"
#include "store/shared/StoreErrors.h"

#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/Transaction.h>

#include <algorithm>
#include <numeric>

namespace Orvane {

namespace {

constexpr qsizetype BytesOfLetter = 3; // of UTF-16 in UTF-8, at most
constexpr qint64 RowsAtOnce = 500; // between two looks at the watcher

StoreErrors ErrorsAbout(const ILayerStore& store)
{
    const QString place = store.Path();
    return StorePlace::IsFile(place) ? StoreErrors(place)
                                     : StoreErrors(StoreErrors::Named{StorePlace::NameOf(place)});
}

ITableTransfer& TransferOf(ILayerStore& store)
{
    if (auto* transfer = dynamic_cast<ITableTransfer*>(&store))
        return *transfer;
    throw ErrorsAbout(store).Failure(StoreTexts::NotCopyable);
}

// As stores compare names: only letters of ASCII are the same in both cases.
bool AreSame(const QString& one, const QString& other)
{
    const auto lower
        = [](QChar letter) { return letter >= u'A' && letter <= u'Z' ? letter.toLower() : letter; };
    return std::equal(one.begin(), one.end(), other.begin(), other.end(), [&](QChar left, QChar right) {
        return lower(left) == lower(right);
    });
}

template <typename Named> const Named* FindNamed(const std::vector<Named>& all, const QString& name)
{
    const auto found
        = std::find_if(all.begin(), all.end(), [&](const Named& named) { return AreSame(named.name, name); });
    return found == all.end() ? nullptr : &*found;
}

bool RefersToOneOf(const StoreTable& table, const std::vector<StoreTable>& others)
{
    return std::any_of(table.columns.begin(), table.columns.end(), [&](const StoreColumn& column) {
        return !AreSame(column.refersTo, table.name) && FindNamed(others, column.refersTo);
    });
}

// Each after those that it refers to; tables that refer to each other in circles come last.
std::vector<StoreTable> InOrderOfReferences(std::vector<StoreTable> tables)
{
    std::vector<StoreTable> ordered;
    ordered.reserve(tables.size());
    while (!tables.empty()) {
        auto next = std::find_if(tables.begin(), tables.end(), [&](const StoreTable& table) {
            return !RefersToOneOf(table, tables);
        });
        if (next == tables.end())
            next = tables.begin();
        ordered.push_back(std::move(*next));
        tables.erase(next);
    }
    return ordered;
}

bool IsIndexed(const StoreTable& table, const QString& column)
{
    const auto has = [&](const std::vector<QString>& names) {
        return std::find(names.begin(), names.end(), column) != names.end();
    };
    return has(table.key) || has(table.unique) || has(table.indexed);
}

/// The work of copying one store.
class StoreCopier
{
public:
    StoreCopier(ILayerStore& from, ILayerStore& to)
        : m_from(from), m_to(to), m_source(TransferOf(from)), m_target(TransferOf(to))
    {
        m_to.SetWatcher([this](double) { return IsWanted(); });
    }
    ~StoreCopier() { m_to.SetWatcher({}); }
    StoreCopier(const StoreCopier&) = delete;
    StoreCopier& operator=(const StoreCopier&) = delete;

    void Run()
    {
        Transaction reading(m_from);
        Transaction writing(m_to);
        const std::vector<StoreTable> tables = InOrderOfReferences(m_from.Tables());
        m_counts = m_source.CountRows(tables);
        m_total = std::accumulate(m_counts.begin(), m_counts.end(), qint64(0));
        RemoveFormerRows();
        for (const StoreTable& table : tables)
            m_to.PrepareTable(table);
        m_targets = TargetsOf(tables);
        for (size_t number = 0; number < tables.size(); ++number) {
            if (m_counts[number] > 0)
                CopyTable(tables[number], m_targets[number]);
        }
        Finish();
        writing.Commit();
        reading.Commit();
    }

private:
    // Those with rows, the last ones first, because others refer to the first ones.
    void RemoveFormerRows()
    {
        const std::vector<StoreTable> tables = InOrderOfReferences(m_to.Tables());
        const std::vector<qint64> counts = m_target.CountRows(tables);
        for (size_t number = tables.size(); number-- > 0;) {
            if (counts[number] > 0)
                m_target.RemoveRows(tables[number]);
        }
    }

    // The tables as they are in the other store, with the columns of the source in their order.
    std::vector<StoreTable> TargetsOf(const std::vector<StoreTable>& tables)
    {
        const std::vector<StoreTable> all = m_to.Tables();
        std::vector<StoreTable> targets;
        targets.reserve(tables.size());
        for (const StoreTable& table : tables) {
            const StoreTable* there = FindNamed(all, table.name);
            if (!there)
                throw ErrorsAbout(m_to).Failure(StoreTexts::UnknownTable, table.name);
            StoreTable target{there->name, {}, there->key, there->unique, there->indexed};
            target.columns.reserve(table.columns.size());
            for (const StoreColumn& column : table.columns)
                target.columns.push_back(ColumnIn(*there, column.name));
            targets.push_back(std::move(target));
        }
        return targets;
    }

    const StoreColumn& ColumnIn(const StoreTable& table, const QString& name) const
    {
        if (const StoreColumn* column = FindNamed(table.columns, name))
            return *column;
        throw ErrorsAbout(m_to).Failure(StoreTexts::UnknownColumn, name);
    }

    void CopyTable(const StoreTable& table, const StoreTable& target)
    {
        UnfitValues tooLong;
        try {
            m_target.AddRows(target, [&](const RowVisitor& add) {
                m_source.ReadRows(table, [&](const StoreRow& row) {
                    NoteLongTexts(target, row, tooLong);
                    AddRow(table, target, row, add);
                });
            });
        } catch (const RunTimeError& error) {
            if (error.Number() != int(ErrorNumber::DatabaseFailure))
                throw;
            if (!tooLong.IsEmpty())
                throw ErrorsAbout(m_from).Failure(StoreTexts::ValuesUnfit, tooLong.Text());
            RequireNoneDangling(table, target);
            throw;
        }
    }

    // The other store keeps its references. Those of a file may be broken by another program.
    void RequireNoneDangling(const StoreTable& table, const StoreTable& target)
    {
        for (size_t number = 0; number < target.columns.size(); ++number) {
            StoreColumn column = target.columns[number];
            column.name = table.columns[number].name;
            if (!column.refersTo.isEmpty() && m_source.CountDangling(table, column) > 0)
                throw ErrorsAbout(m_from).Failure(StoreTexts::RowsDangling, table.name);
        }
    }

    // Not each of them is refused: it depends on what is in the text.
    void NoteLongTexts(const StoreTable& target, const StoreRow& row, UnfitValues& tooLong) const
    {
        const qsizetype longest = m_target.LongestIndexedText();
        for (size_t column = 0; column < row.size(); ++column) {
            const auto* text = row[column].Get<QString>();
            if (text && text->size() > longest / BytesOfLetter && text->toUtf8().size() > longest
                && IsIndexed(target, target.columns[column].name))
                tooLong.Add(target, row, column);
        }
    }

    // The first values that do not fit stop the adding, but not the search for others.
    void AddRow(const StoreTable& table, const StoreTable& target, const StoreRow& row, const RowVisitor& add)
    {
        m_fitted.clear();
        for (size_t column = 0; column < row.size(); ++column) {
            if (auto value = FittedValue(row[column], target.columns[column].type))
                m_fitted.push_back(std::move(*value));
            else
                m_unfit.Add(table, row, column);
        }
        if (m_unfit.IsEmpty())
            add(m_fitted);
        if (++m_read % RowsAtOnce == 0)
            m_from.AskWatcher(Share());
    }

    double Share() const { return m_total > 0 ? double(m_read) / double(m_total) : UnknownShare; }

    // Whoever watches the source may cancel while the other store works.
    bool IsWanted() noexcept
    {
        try {
            m_from.AskWatcher(Share());
            return true;
        } catch (...) {
            return false;
        }
    }

    void Finish()
    {
        if (!m_unfit.IsEmpty())
            throw ErrorsAbout(m_from).Failure(StoreTexts::ValuesUnfit, m_unfit.Text());
        m_target.FinishRows(m_targets);
        const std::vector<qint64> counts = m_target.CountRows(m_targets);
        for (size_t number = 0; number < counts.size(); ++number) {
            if (counts[number] != m_counts[number])
                throw ErrorsAbout(m_from).Failure(StoreTexts::RowsMissing, m_targets[number].name);
        }
    }

    ILayerStore& m_from;
    ILayerStore& m_to;
    ITableTransfer& m_source;
    ITableTransfer& m_target;
    std::vector<StoreTable> m_targets; // in the order of the source's tables
    std::vector<qint64> m_counts; // of the source's rows, in the same order
    StoreRow m_fitted; // the row that is added
    UnfitValues m_unfit;
    qint64 m_total = 0;
    qint64 m_read = 0; // of all rows
};

} // namespace

void CopyStore(ILayerStore& from, ILayerStore& to)
{
    StoreCopier(from, to).Run();
}

} // namespace Orvane
