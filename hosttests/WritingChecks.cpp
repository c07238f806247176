// SPDX-License-Identifier: MIT
#include "hosttests/CheckLists.h"
#include "hosttests/CheckRun.h"
#include "hosttests/ComponentCalls.h"
#include "hosttests/SampleContents.h"

#include <OrvaneShellLib/LayerQueries.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <limits>

namespace Orvane::HostTests {

namespace {

using ComponentCalls::OpenLayersByID;
using ComponentCalls::SeekID;

Value Stored(CheckRun& run, qint32 layerID, const char* column)
{
    const auto layers = OpenLayersByID(run.Client());
    return SeekID(*layers, layerID) ? layers->Field(column) : Value();
}

void Store(CheckRun& run, qint32 layerID, const char* column, const Value& value)
{
    const auto layers = OpenLayersByID(run.Client());
    SeekID(*layers, layerID);
    run.Client().BeginLayerEdit(*layers);
    layers->SetField(column, value);
    layers->Update();
}

void ExpectStored(CheckRun& run, const char* column, const Value& value)
{
    Store(run, TownLayer::Rivers, column, value);
    run.ExpectValue(QString::fromLatin1(column), Stored(run, TownLayer::Rivers, column), value);
}

void CheckFlags(CheckRun& run)
{
    for (const char* column : {"Visible", "Selectable", "locked", "Hitable", "SnapRequired", "Enquirable"}) {
        for (const bool flag : {true, false, true})
            ExpectStored(run, column, flag);
    }
}

void CheckNumbers(CheckRun& run)
{
    ExpectStored(run, "OverrideMode", qint16(2));
    ExpectStored(run, "FillStyle", qint16(15));
    ExpectStored(run, "LineThickness", qint32(-7));
    ExpectStored(run, "OutlineStyle", 3.0);
    ExpectStored(run, "Priority", qint32(255));
    ExpectStored(run, "Style", qint32(2));
    ExpectStored(run, "MinVisScale", 2500.0);
    ExpectStored(run, "MinVisScale", 0.25);
    ExpectStored(run, "MaxVisScale", qint32(50000));
}

void CheckLimits(CheckRun& run)
{
    for (const char* column : {"Color", "FillForeColor", "FillBackColor", "Priority"}) {
        ExpectStored(run, column, std::numeric_limits<qint32>::max());
        ExpectStored(run, column, std::numeric_limits<qint32>::min());
        ExpectStored(run, column, qint32(-1));
        ExpectStored(run, column, qint32(0));
    }
}

void CheckCode(CheckRun& run)
{
    ComponentCalls::SetCode(run.Client(), TownLayer::Rivers, 120);
    run.ExpectValue(QStringLiteral("Code"), Stored(run, TownLayer::Rivers, "Code"), 120);
    run.ExpectIDs(
        QStringLiteral("OneLayer with the code 120"),
        ComponentCalls::IDsIn(run.Database(), LayerQueries::OneLayer(TownLayer::Rivers), "LayerID"),
        {TownLayer::Rivers});
    ComponentCalls::SetCode(run.Client(), TownLayer::Rivers, -2);
    run.ExpectIDs(
        QStringLiteral("OneLayer with the code -2"),
        ComponentCalls::IDsIn(run.Database(), LayerQueries::OneLayer(TownLayer::Rivers), "LayerID"), {});
}

void CheckTexts(CheckRun& run)
{
    for (const QString& name :
         {QStringLiteral("It's \"quoted\" ''twice''; DROP TABLE Layers; -- 100% \\ %1 ^1 ?1"),
          QStringLiteral(u"Stra\u00DFe \u9053\u8DEF \u0434\u043E\u0440\u043E\u0433\u0430 \U0001F6E3"),
          QString(3000, QChar(0x00E9)), QStringLiteral("two\nlines\tand a tab"),
          QStringLiteral(" blanks around "), QStringLiteral("12"), QString(QLatin1String(""))})
        ExpectStored(run, "Name", name);
}

void CheckNull(CheckRun& run)
{
    for (const char* column : {"Color", "MinVisScale", "Visible", "Name"})
        ExpectStored(run, column, Value::Null());
}

void CheckOthersStay(CheckRun& run)
{
    Store(run, TownLayer::Rivers, "Priority", qint32(77));
    const auto layers = OpenLayersByID(run.Client());
    for (const ContentsLayer& layer : run.Contents().layers) {
        const qint32 layerID = ToInt32(layer.Get("LayerID"));
        SeekID(*layers, layerID);
        for (const LayerColumn& column : LayerColumns) {
            const bool isChanged
                = layerID == TownLayer::Rivers && std::string_view(column.name) == "Priority";
            run.ExpectValue(
                QStringLiteral("layer %1, %2").arg(layerID).arg(QLatin1String(column.name)),
                layers->Field(column.name), isChanged ? Value(qint32(77)) : layer.Get(column.name));
        }
    }
}

void CheckDuringEdit(CheckRun& run)
{
    const auto layers = OpenLayersByID(run.Client());
    SeekID(*layers, TownLayer::Rivers);
    layers->Edit();
    layers->SetField("Priority", qint32(55));
    run.ExpectValue(QStringLiteral("Priority during the edit"), layers->Field("Priority"), 55);
    run.ExpectValue(QStringLiteral("Name during the edit"), layers->Field("Name"), QStringLiteral("Rivers"));
    run.ExpectValue(
        QStringLiteral("Priority for another cursor before Update"),
        Stored(run, TownLayer::Rivers, "Priority"), run.Contents().Layer(TownLayer::Rivers).Get("Priority"));
    layers->Update();
    run.ExpectValue(QStringLiteral("Priority after Update"), layers->Field("Priority"), 55);
    run.ExpectValue(QStringLiteral("LayerID after Update"), layers->Field("LayerID"), TownLayer::Rivers);
}

void CheckDroppedEdit(CheckRun& run)
{
    {
        const auto layers = OpenLayersByID(run.Client());
        SeekID(*layers, TownLayer::Rivers);
        run.Client().BeginLayerEdit(*layers);
        layers->SetField("Priority", qint32(66));
    }
    {
        const auto layers = OpenLayersByID(run.Client());
        SeekID(*layers, TownLayer::Rivers);
        layers->Edit();
        layers->SetField("Priority", qint32(67));
        layers->Close();
    }
    run.ExpectValue(
        QStringLiteral("Priority after edits without Update"), Stored(run, TownLayer::Rivers, "Priority"),
        run.Contents().Layer(TownLayer::Rivers).Get("Priority"));
}

void CheckEmptyEdit(CheckRun& run)
{
    const auto layers = OpenLayersByID(run.Client());
    SeekID(*layers, TownLayer::Rivers);
    run.Client().BeginLayerEdit(*layers);
    run.Client().LayerChanged(TownLayer::Rivers);
    layers->Update();
    run.Client().RedrawMap();
    run.ExpectValue(QStringLiteral("LayerID after Update"), layers->Field("LayerID"), TownLayer::Rivers);
    run.ExpectValue(QStringLiteral("Name after Update"), layers->Field("Name"), QStringLiteral("Rivers"));
}

void CheckEmptyValue(CheckRun& run)
{
    const auto layers = OpenLayersByID(run.Client());
    SeekID(*layers, TownLayer::Rivers);
    layers->Edit();
    run.ExpectError(
        QStringLiteral("SetField with Empty"), [&] { layers->SetField("Priority", Value()); },
        ErrorNumber::TypeMismatch);
}

void CheckOneCursorForMany(CheckRun& run)
{
    const auto layers = OpenLayersByID(run.Client());
    for (const qint32 id : {TownLayer::Zoning, TownLayer::None, TownLayer::Roads, TownLayer::Airports}) {
        if (!SeekID(*layers, id))
            continue;
        run.Client().BeginLayerEdit(*layers);
        layers->SetField("Priority", id + 40);
        run.Client().LayerChanged(id);
        layers->Update();
    }
    for (const qint32 id : {TownLayer::Zoning, TownLayer::Roads, TownLayer::Airports})
        run.ExpectValue(QStringLiteral("layer %1").arg(id), Stored(run, id, "Priority"), id + 40);
}

void CheckExpanded(CheckRun& run)
{
    const auto expanded = [&run](qint32 groupID) {
        const auto groups = ComponentCalls::OpenGroupsByID(run.Database());
        return SeekID(*groups, groupID) ? groups->Field("Expanded") : Value();
    };
    for (const bool flag : {true, false}) {
        ComponentCalls::SetExpanded(run.Client(), TownGroup::Water, flag);
        run.ExpectValue(QStringLiteral("Expanded"), expanded(TownGroup::Water), flag);
    }
    run.ExpectValue(QStringLiteral("Expanded of another group"), expanded(TownGroup::Quoted), true);
}

void CheckRefusal(CheckRun& run)
{
    if (run.Can(Ability::Writing))
        return run.Skip(QStringLiteral("the host can write"));
    const auto layers = OpenLayersByID(run.Client());
    SeekID(*layers, TownLayer::Rivers);
    run.ExpectError(QStringLiteral("an edit of a layer database that cannot be written"), [&] {
        run.Client().BeginLayerEdit(*layers);
        layers->SetField("Priority", qint32(77));
        layers->Update();
    });
    run.ExpectValue(
        QStringLiteral("Priority after the refused edit"), Stored(run, TownLayer::Rivers, "Priority"),
        run.Contents().Layer(TownLayer::Rivers).Get("Priority"));
}

} // namespace

std::vector<HostCheck> WritingChecks()
{
    const std::vector<Ability> writing{Ability::Writing};
    return {
        {"Writing", "FlagsAreWrittenAsBooleans",
         "IRecordset::SetField: flags are given as booleans, and read as booleans or as 0 and 1.", writing,
         Town, CheckFlags},
        {"Writing", "NumbersOfAllKindsAreStored",
         "IRecordset::SetField: a number column takes Int16, Int32 and Double, and is read as a number.",
         writing, Town, CheckNumbers},
        {"Writing", "WholeNumbersHave32Bits",
         "Whole numbers from -2147483648 to 2147483647 are stored and read unchanged.", writing, Town,
         CheckLimits},
        {"Writing", "ACodeIsWrittenAsADouble",
         "The component writes Code as a Double; it is read as the same number, and LayerQueries::OneLayer "
         "compares it as a number.",
         writing, Town, CheckCode},
        {"Writing", "TextsStayAsTheyAre",
         "Texts are stored and read unchanged: quotes, all scripts, blanks, several lines, digits, none.",
         writing, Town, CheckTexts},
        {"Writing",
         "NullCanBeStored",
         "IRecordset::SetField: Null is stored, and read as Null.",
         {Ability::Writing, Ability::NullValues},
         Town,
         CheckNull},
        {"Writing", "OnlyTheSetColumnsChange",
         "IRecordset::Update: stores the columns that were set, and changes no other column and no other "
         "row.",
         writing, Town, CheckOthersStay},
        {"Writing", "AnEditIsSeenByItsCursorUntilUpdate",
         "IRecordset: during an edit, Field returns the new value and nobody else sees it; after Update the "
         "cursor is still on the row.",
         writing, Town, CheckDuringEdit},
        {"Writing", "AnEditWithoutUpdateIsDropped",
         "IRecordset: closing or destroying a cursor discards an edit that was not stored.", writing, Town,
         CheckDroppedEdit},
        {"Writing", "AnUpdateWithoutColumnsWritesNothing",
         "IRecordset::Update: if no column was set, nothing is written and no error is raised.", writing,
         Town, CheckEmptyEdit},
        {"Writing", "EmptyIsNoColumnValue", "IRecordset::SetField: Empty raises 13 (type mismatch).", writing,
         Town, CheckEmptyValue},
        {"Writing", "OneCursorEditsManyRows",
         "LayersTable: one cursor seeks and edits one layer after the other.", writing, Town,
         CheckOneCursorForMany},
        {"Writing", "AGroupRemembersThatItIsExpanded",
         "LayerGroups.Expanded is written as a boolean, for that group alone.", writing, Town, CheckExpanded},
        {"Writing",
         "AReadOnlyDatabaseRefusesEdits",
         "A host that cannot write raises a RunTimeError at BeginLayerEdit, SetField or Update, and changes "
         "nothing.",
         {},
         Town,
         CheckRefusal},
    };
}

} // namespace Orvane::HostTests
