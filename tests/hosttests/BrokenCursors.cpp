// SPDX-License-Identifier: MIT
#include "hosttests/FaultyDatabase.h"

#include <OrvaneShellLib/LayerColumns.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <functional>

namespace Orvane::Testing {

namespace {

[[noreturn]] void Raise(const char* text)
{
    throw RunTimeError(ErrorNumber::DatabaseFailure, QString::fromLatin1(text));
}

using ReadFault = std::function<Value(std::string_view column, const Value& value)>;
// Nothing: the column is not set.
using WriteFault = std::function<std::optional<Value>(const Value& value)>;
using SeekFault = std::function<qint32(qint32 key)>;

struct CursorFaults {
    ReadFault read = {};
    WriteFault write = {};
    SeekFault seek = {};
};

class FaultyCursor : public ForwardingRecordset
{
public:
    FaultyCursor(std::unique_ptr<IRecordset> cursor, CursorFaults faults)
        : ForwardingRecordset(std::move(cursor)), m_faults(std::move(faults))
    {
    }

private:
    Value IRecordset_Field(std::string_view column) const override
    {
        Value value = Wrapped().Field(column);
        return m_faults.read ? m_faults.read(column, value) : value;
    }
    void IRecordset_SetField(std::string_view column, const Value& value) override
    {
        const std::optional<Value> written = m_faults.write ? m_faults.write(value) : value;
        if (written)
            Wrapped().SetField(column, *written);
    }
    void IRecordset_Seek(std::string_view comparison, qint32 key) override
    {
        Wrapped().Seek(comparison, m_faults.seek ? m_faults.seek(key) : key);
    }

    CursorFaults m_faults;
};

HostTests::MakeHost Cursors(const CursorFaults& faults)
{
    return With({.cursor = [faults](std::unique_ptr<IRecordset> cursor) -> std::unique_ptr<IRecordset> {
        return std::make_unique<FaultyCursor>(std::move(cursor), faults);
    }});
}

Value NumberAsText(std::string_view, const Value& value)
{
    return value.IsNumber() ? Value(ToText(value)) : value;
}

Value NullAsNothing(std::string_view, const Value& value)
{
    return value.IsNull() ? Value(QString()) : value;
}

Value SixteenBits(std::string_view, const Value& value)
{
    return value.IsNumber() ? Value(qint32(qint16(qint64(ToDouble(value))))) : value;
}

Value NothingExpanded(std::string_view column, const Value& value)
{
    return column == "Expanded" ? Value(false) : value;
}

Value OnlyExactNames(std::string_view column, const Value& value)
{
    if (column == "LOCKED")
        Raise("unknown column");
    return value;
}

Value AnotherEachTime(std::string_view column, const Value& value)
{
    static double count = 0;
    return column == "Priority" ? Value(++count) : value;
}

template <ValueKind Kind> std::optional<Value> Unless(const Value& value)
{
    return value.Kind() == Kind ? std::nullopt : std::optional(value);
}

std::optional<Value> WithoutQuotes(const Value& value)
{
    return value.IsText() ? Value(ToText(value).remove(QLatin1Char('\''))) : value;
}

class NoMatchIsFalse : public ForwardingRecordset
{
    using ForwardingRecordset::ForwardingRecordset;
    bool IRecordset_NoMatch() const override { return false; }
};

class NoMatchStays : public ForwardingRecordset
{
    using ForwardingRecordset::ForwardingRecordset;
    void IRecordset_Seek(std::string_view comparison, qint32 key) override
    {
        Wrapped().Seek(comparison, key);
        m_noMatch = m_noMatch || Wrapped().NoMatch();
    }
    bool IRecordset_NoMatch() const override { return m_noMatch; }
    bool m_noMatch = false;
};

class AnyComparison : public ForwardingRecordset
{
    using ForwardingRecordset::ForwardingRecordset;
    void IRecordset_Seek(std::string_view, qint32 key) override { Wrapped().Seek("=", key); }
};

class RowBeforeSeek : public ForwardingRecordset
{
    using ForwardingRecordset::ForwardingRecordset;
    void IRecordset_Index(std::string_view name) override
    {
        m_isTable = true;
        Wrapped().Index(name);
    }
    bool IRecordset_AtEOF() const override { return m_isTable ? Wrapped().NoMatch() : Wrapped().AtEOF(); }
    bool m_isTable = false;
};

class CloseOnce : public ForwardingRecordset
{
    using ForwardingRecordset::ForwardingRecordset;
    void IRecordset_Close() override
    {
        if (m_closed)
            Raise("closed already");
        m_closed = true;
        Wrapped().Close();
    }
    bool m_closed = false;
};

class SetsMore : public ForwardingRecordset
{
    using ForwardingRecordset::ForwardingRecordset;
    void IRecordset_SetField(std::string_view column, const Value& value) override
    {
        Wrapped().SetField("Enquirable", false);
        Wrapped().SetField(column, value);
    }
};

class StoresAtOnce : public ForwardingRecordset
{
    using ForwardingRecordset::ForwardingRecordset;
    void IRecordset_SetField(std::string_view column, const Value& value) override
    {
        Wrapped().SetField(column, value);
        Wrapped().Update();
        Wrapped().Edit();
    }
};

class NeedsColumns : public ForwardingRecordset
{
    using ForwardingRecordset::ForwardingRecordset;
    void IRecordset_SetField(std::string_view column, const Value& value) override
    {
        m_set = true;
        Wrapped().SetField(column, value);
    }
    void IRecordset_Update() override
    {
        if (!m_set)
            Raise("nothing to store");
        Wrapped().Update();
    }
    bool m_set = false;
};

class UpdatesOnce : public ForwardingRecordset
{
    using ForwardingRecordset::ForwardingRecordset;
    void IRecordset_Update() override
    {
        if (!m_done)
            Wrapped().Update();
        m_done = true;
    }
    bool m_done = false;
};

class StartsLate : public ForwardingRecordset
{
public:
    explicit StartsLate(std::unique_ptr<IRecordset> cursor) : ForwardingRecordset(std::move(cursor))
    {
        if (!Wrapped().AtEOF())
            Wrapped().MoveNext();
    }
};

// All cursors share one position.
HostTests::MakeHost SharingThePosition()
{
    class Shared : public ForwardingRecordset
    {
    public:
        Shared(std::unique_ptr<IRecordset> cursor, std::shared_ptr<qint32> key)
            : ForwardingRecordset(std::move(cursor)), m_key(std::move(key))
        {
        }

    private:
        void IRecordset_Seek(std::string_view comparison, qint32 key) override
        {
            *m_key = key;
            Wrapped().Seek(comparison, key);
        }
        Value IRecordset_Field(std::string_view column) const override
        {
            return column == "LayerID" && *m_key != 0 ? Value(*m_key) : Wrapped().Field(column);
        }
        std::shared_ptr<qint32> m_key;
    };
    return With(
        {.cursor = [key = std::make_shared<qint32>(0)](std::unique_ptr<IRecordset> cursor)
             -> std::unique_ptr<IRecordset> { return std::make_unique<Shared>(std::move(cursor), key); }});
}

std::vector<BrokenHost> HostsThatReadBadly()
{
    return {
        {"ItReadsNumbersAsTexts",
         Cursors({.read = NumberAsText}),
         {"TheTreeHasAllColumnsOfLayers", "TheListHasAllColumnsOfLayers", "TheTableHasAllColumnsOfLayers"}},
        {"ItReadsNullAsNothing", Cursors({.read = NullAsNothing}), {"NullIsReadAsNull"}},
        {"ItHas16Bits",
         Cursors({.read = SixteenBits}),
         {"ValuesAtTheLimitsAreReadWhole", "WholeNumbersHave32Bits"}},
        {"ItForgetsWhatIsExpanded",
         Cursors({.read = NothingExpanded}),
         {"GroupsHaveNameAndFlags", "AGroupRemembersThatItIsExpanded"}},
        {"ItKnowsColumnsByTheirExactNames", Cursors({.read = OnlyExactNames}), {"NamesOfColumnsHaveNoCase"}},
        {"ItReadsAnotherValueEachTime",
         Cursors({.read = AnotherEachTime}),
         {"ARowThatDidNotChangeIsReadTheSame"}},
        {"ItsCursorsShareAPosition", SharingThePosition(), {"CursorsDoNotDisturbEachOther"}},
        {"ItStartsOnTheSecondRow",
         WithCursor<StartsLate>(),
         {"AQueryStartsOnItsFirstRowAndEnds", "BothListsAreRead"}},
        {"ItClosesOnlyOnce", WithCursor<CloseOnce>(), {"ClosingTwiceDoesNothing"}},
    };
}

std::vector<BrokenHost> HostsThatSeekBadly()
{
    return {
        {"ItSeeksTheNextRow",
         Cursors({.seek = [](qint32 key) { return key == 2 ? 3 : key; }}),
         {"SeekFindsTheRow"}},
        {"ItNeverSaysNoMatch",
         WithCursor<NoMatchIsFalse>(),
         {"SeekForAMissingRowIsNoMatch", "AMissingLayerIsNeitherReadNorWritten"}},
        {"ItGoesOnSayingNoMatch", WithCursor<NoMatchStays>(), {"SeekWorksAgainAfterNoMatch"}},
        {"ItSeeksByCode",
         Cursors({.seek = [](qint32 key) { return key == 12 ? 3 : key; }}),
         {"SeekGoesByTheIDAlone"}},
        {"ItTakesAnyComparison", WithCursor<AnyComparison>(), {"SeekKnowsOnlyEquality"}},
        {"ItsTablesStartOnARow", WithCursor<RowBeforeSeek>(), {"ATableHasNoRowBeforeSeek"}},
    };
}

std::vector<BrokenHost> HostsThatWriteBadly()
{
    return {
        {"ItDoesNotStoreFlags",
         Cursors({.write = Unless<ValueKind::Boolean>}),
         {"FlagsAreWrittenAsBooleans", "ALayerIsEditedAndApplied", "AnEditReachesTheLayer",
          "AnEditReachesAllLayersOfAGroup"}},
        {"ItDoesNotStoreDoubles",
         Cursors({.write = Unless<ValueKind::Double>}),
         {"NumbersOfAllKindsAreStored", "ACodeIsWrittenAsADouble"}},
        {"ItDropsQuotes", Cursors({.write = WithoutQuotes}), {"TextsStayAsTheyAre"}},
        {"ItDoesNotStoreNull", Cursors({.write = Unless<ValueKind::Null>}), {"NullCanBeStored"}},
        {"ItIgnoresEmpty", Cursors({.write = Unless<ValueKind::Empty>}), {"EmptyIsNoColumnValue"}},
        {"ItSetsMoreColumns", WithCursor<SetsMore>(), {"OnlyTheSetColumnsChange"}},
        {"ItStoresBeforeUpdate",
         WithCursor<StoresAtOnce>(),
         {"AnEditIsSeenByItsCursorUntilUpdate", "AnEditWithoutUpdateIsDropped"}},
        {"ItWantsColumnsInAnUpdate", WithCursor<NeedsColumns>(), {"AnUpdateWithoutColumnsWritesNothing"}},
        {"ItUpdatesOnceForEachCursor",
         WithCursor<UpdatesOnce>(),
         {"OneCursorEditsManyRows", "AGroupWithVariousValuesIsApplied"}},
    };
}

} // namespace

std::vector<BrokenHost> HostsWithBrokenCursors()
{
    std::vector<BrokenHost> hosts = HostsThatReadBadly();
    for (const auto list : {HostsThatSeekBadly, HostsThatWriteBadly}) {
        for (BrokenHost& host : list())
            hosts.push_back(std::move(host));
    }
    return hosts;
}

} // namespace Orvane::Testing
