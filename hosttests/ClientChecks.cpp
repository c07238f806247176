// SPDX-License-Identifier: MIT
#include "hosttests/CheckLists.h"
#include "hosttests/CheckRun.h"
#include "hosttests/ComponentCalls.h"
#include "hosttests/SampleContents.h"

#include <OrvaneShellLib/LayerQueries.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QSet>
#include <QWidget>

namespace Orvane::HostTests {

namespace {

Value NameOfLayer(CheckRun& run, qint32 layerID)
{
    const auto layers = ComponentCalls::OpenLayersByID(run.Client());
    return ComponentCalls::SeekID(*layers, layerID) ? layers->Field("Name") : Value();
}

Value NameOfGroup(CheckRun& run, qint32 groupID)
{
    const auto groups = ComponentCalls::OpenGroupsByID(run.Database());
    return ComponentCalls::SeekID(*groups, groupID) ? groups->Field("Name") : Value();
}

void ExpectListed(CheckRun& run, qint32 layerID, const QString& name)
{
    const QString listed = run.Client().LayerDisplayName(layerID);
    run.Expect(
        listed.contains(name),
        QStringLiteral("LayerDisplayName(%1) is \"%2\", without the name \"%3\"")
            .arg(layerID)
            .arg(listed, name));
}

const QStringList& NewNames()
{
    static const QStringList names{
        QStringLiteral("It's \"new\" 100% %1 ^1"), QStringLiteral(u"Stra\u00DFe \u9053"),
        QString(500, QLatin1Char('x'))};
    return names;
}

void CheckSameObjects(CheckRun& run)
{
    run.Expect(&run.Database() == &run.Database(), QStringLiteral("Database() is another object each time"));
    run.Expect(&run.Services() == &run.Services(), QStringLiteral("GetShellServices() is another object"));
    run.Expect(run.Client().LayersTable() != nullptr, QStringLiteral("LayersTable() returned nullptr"));
}

void CheckDisplayNames(CheckRun& run)
{
    for (const ContentsLayer& row : run.Contents().layers)
        ExpectListed(run, ToInt32(row.Get("LayerID")), ToTextOrNone(row.Get("Name")));
}

void CheckNamesOfNobody(CheckRun& run)
{
    run.Client().LayerDisplayName(2);
    run.Allow([&] { run.Client().LayerDisplayName(TownLayer::None); });
}

void CheckRenameLayer(CheckRun& run)
{
    for (const QString& name : NewNames()) {
        run.Client().RenameLayer(TownLayer::Rivers, name);
        run.ExpectValue(QStringLiteral("Layers.Name"), NameOfLayer(run, TownLayer::Rivers), name);
        ExpectListed(run, TownLayer::Rivers, name);
    }
    run.ExpectValue(
        QStringLiteral("Name of another layer"), NameOfLayer(run, TownLayer::Roads), QStringLiteral("roads"));
    run.Client().RenameLayer(TownLayer::None, QStringLiteral("Nobody"));
    run.Expect(
        NameOfLayer(run, TownLayer::None).IsEmpty(), QStringLiteral("renaming a missing layer made one"));
}

void CheckRenameGroup(CheckRun& run)
{
    for (const QString& name : NewNames()) {
        run.Client().RenameGroup(TownGroup::Water, name);
        run.ExpectValue(QStringLiteral("LayerGroups.Name"), NameOfGroup(run, TownGroup::Water), name);
        run.ExpectNumber(
            QStringLiteral("rows of Tree with the new name"),
            qint64(ComponentCalls::IDsIn(run.Database(), LayerQueries::Tree(name), "LayerID").size()), 3);
    }
    run.Client().RenameGroup(TownGroup::None, QStringLiteral("Nobody"));
    run.Expect(
        NameOfGroup(run, TownGroup::None).IsEmpty(), QStringLiteral("renaming a missing group made one"));
}

void CheckCodes(CheckRun& run)
{
    for (const qint16 code : {qint16(10), qint16(14), qint16(-1), qint16(-2), qint16(-3)})
        run.Expect(
            run.Client().IsCodeAssigned(code), QStringLiteral("IsCodeAssigned(%1) is false").arg(code));
    for (const qint16 code : {qint16(0), qint16(1), qint16(9), qint16(32767), qint16(-32768)})
        run.Expect(
            !run.Client().IsCodeAssigned(code), QStringLiteral("IsCodeAssigned(%1) is true").arg(code));
}

void CheckCodesAfterChange(CheckRun& run)
{
    run.Client().IsCodeAssigned(12);
    ComponentCalls::SetCode(run.Client(), TownLayer::Rivers, 120);
    run.Expect(run.Client().IsCodeAssigned(120), QStringLiteral("IsCodeAssigned is false for the new code"));
    run.Expect(!run.Client().IsCodeAssigned(12), QStringLiteral("IsCodeAssigned is true for the old code"));
}

void CheckRendererStyles(CheckRun& run)
{
    QSet<qint32> numbers{0};
    const std::vector<RendererStyle> styles = run.Client().RendererStyles();
    for (const RendererStyle& style : styles) {
        run.Expect(
            !numbers.contains(style.number),
            QStringLiteral("the number %1 is taken twice; 0 is Standard's").arg(style.number));
        run.Expect(!style.name.isEmpty(), QStringLiteral("style %1 has no name").arg(style.number));
        numbers.insert(style.number);
    }
    run.ExpectNumber(
        QStringLiteral("styles at a second call"), qint64(run.Client().RendererStyles().size()),
        qint64(styles.size()));
}

void CheckLook(CheckRun& run)
{
    run.ExpectText(
        QStringLiteral("StyleCommandPrefix at a second call"), run.Client().StyleCommandPrefix(),
        run.Client().StyleCommandPrefix());
    run.Expect(
        run.Client().QuickModesAllowed() == run.Client().QuickModesAllowed(),
        QStringLiteral("QuickModesAllowed changes by itself"));
}

void CheckRedraw(CheckRun& run)
{
    run.Client().RedrawMap();
    run.Client().LayerChanged(TownLayer::Roads);
    run.Client().LayerChanged(TownLayer::Roads);
    run.Client().RedrawMap();
    run.Client().RedrawMap();
}

void CheckSettings(CheckRun& run)
{
    if (!HasWindows(run))
        return;
    QWidget form;
    const auto key = QStringLiteral("DrawStyleEditor::HostTests");
    const auto otherKey = QStringLiteral("DrawStyleEditor::HostTests's \"other\" 50%");
    const auto value = QStringLiteral(u"9000:7000:LAYERS:EXPANDED 'x' \u9053\n;=\\");
    run.ExpectText(
        QStringLiteral("a setting that was never written"),
        run.Client().ReadSetting(&form, QStringLiteral("DrawStyleEditor::NeverWritten")), QString());
    run.Client().WriteSetting(&form, key, value);
    run.Client().WriteSetting(&form, otherKey, QStringLiteral("other"));
    run.ExpectText(QStringLiteral("the setting"), run.Client().ReadSetting(&form, key), value);
    run.ExpectText(
        QStringLiteral("another setting"), run.Client().ReadSetting(&form, otherKey),
        QStringLiteral("other"));
    run.Client().WriteSetting(&form, key, QString());
    run.ExpectText(QStringLiteral("the emptied setting"), run.Client().ReadSetting(&form, key), QString());
}

void CheckWindows(CheckRun& run)
{
    if (!HasWindows(run))
        return;
    QWidget form;
    run.Client().ThemeName(&form);
    run.Client().ShowEditor(&form);
    run.Expect(form.isVisible(), QStringLiteral("the form is not visible after ShowEditor"));
    run.Client().EditorClosed(&form);
    run.Client().EditorClosed(&form);
    form.hide();
    run.Client().WriteSetting(&form, QStringLiteral("DrawStyleEditor::HostTests"), QStringLiteral("late"));
}

void CheckCreateLayer(CheckRun& run)
{
    const qint32 layerID = run.Client().CreateLayer();
    if (!run.Expect(layerID != 0, QStringLiteral("CreateLayer returned 0")))
        return;
    for (const ContentsLayer& row : run.Contents().layers)
        run.Expect(
            ToInt32(row.Get("LayerID")) != layerID, QStringLiteral("CreateLayer returned the ID of another"));
    const auto layers = ComponentCalls::OpenLayersByID(run.Client());
    if (!run.Expect(
            ComponentCalls::SeekID(*layers, layerID), QStringLiteral("the new layer's row was not found")))
        return;
    ExpectListed(run, layerID, ToTextOrNone(layers->Field("Name")));
    run.Expect(run.Client().CreateLayer() != layerID, QStringLiteral("two new layers have the same ID"));
}

void CheckDeleteLayer(CheckRun& run)
{
    run.Client().DeleteLayer(TownLayer::Rivers);
    ILayerDatabase& database = run.Database();
    if (!NameOfLayer(run, TownLayer::Rivers).IsEmpty())
        return run.Skip(QStringLiteral("the host kept the layer"));
    run.ExpectIDs(
        QStringLiteral("OneLayer of the deleted layer"),
        ComponentCalls::IDsIn(database, LayerQueries::OneLayer(TownLayer::Rivers), "LayerID"), {});
    run.ExpectNumber(
        QStringLiteral("rows of Tree for its group"),
        qint64(
            ComponentCalls::IDsIn(database, LayerQueries::Tree(QStringLiteral("Water")), "LayerID").size()),
        2);
    run.Expect(!run.Client().IsCodeAssigned(12), QStringLiteral("its code is still assigned"));
    run.ExpectValue(
        QStringLiteral("Name of another layer"), NameOfLayer(run, TownLayer::Roads), QStringLiteral("roads"));
}

} // namespace

std::vector<HostCheck> ClientChecks()
{
    const std::vector<Ability> writing{Ability::Writing};
    return {
        {"Client",
         "ItsObjectsStayTheSame",
         "IStyleEditorClient: Database() and GetShellServices() return the same object at each call, "
         "LayersTable() never nullptr.",
         {},
         Town,
         CheckSameObjects},
        {"Client",
         "LayersAreListedByTheirNames",
         "LayerDisplayName: the layer's name, possibly with \"(Obscured)\" or \"(Suppressed)\"; for hidden "
         "layers too.",
         {},
         Town,
         CheckDisplayNames},
        {"Client",
         "ALayerWithoutANameCanBeListed",
         "LayerDisplayName: raises no error for a layer whose Name is NULL; for a missing layer at most a "
         "RunTimeError.",
         {Ability::NullValues},
         WithNulls,
         CheckNamesOfNobody},
        {"Client", "ARenamedLayerHasItsNewNameEverywhere",
         "RenameLayer: stores the name, any text, in Layers.Name; LayerDisplayName then has it. Does nothing "
         "if the layer does not exist.",
         writing, Town, CheckRenameLayer},
        {"Client", "ARenamedGroupHasItsNewNameEverywhere",
         "RenameGroup: stores the name, any text, in LayerGroups.Name; LayerQueries::Tree finds it. Does "
         "nothing if the group does not exist.",
         writing, Town, CheckRenameGroup},
        {"Client",
         "ACodeIsAssignedIfALayerHasIt",
         "IsCodeAssigned: true when a layer has that code, hidden layers included.",
         {},
         Town,
         CheckCodes},
        {"Client", "AChangedCodeIsKnownAtOnce",
         "IsCodeAssigned: follows codes that were changed through LayersTable.", writing, Town,
         CheckCodesAfterChange},
    };
}

std::vector<HostCheck> WindowChecks()
{
    return {
        {"Client",
         "RendererStylesHaveNumbersOfTheirOwn",
         "RendererStyles: each has a name, and a number that is not 0 and that no other has.",
         {},
         NoContents,
         CheckRendererStyles},
        {"Client",
         "WhatIsReadOnceStaysTheSame",
         "StyleCommandPrefix and QuickModesAllowed are read once for each editor, and do not change.",
         {},
         NoContents,
         CheckLook},
        {"Client",
         "RedrawMapNeedsNoChanges",
         "LayerChanged and RedrawMap raise no error, however often and in whatever order they are called.",
         {},
         Town,
         CheckRedraw},
        {"Client",
         "SettingsAreReadAsWritten",
         "ReadSetting: the text that WriteSetting stored under that key, any text, or an empty one.",
         {},
         NoContents,
         CheckSettings},
        {"Client",
         "AnEditorIsShownAndClosedTwice",
         "ShowEditor shows the form; EditorClosed may be called twice, and WriteSetting after it.",
         {},
         NoContents,
         CheckWindows},
        {"Client",
         "ANewLayerHasARow",
         "CreateLayer: returns the ID of a new row of Layers.",
         {Ability::Writing, Ability::CreatingLayers},
         Town,
         CheckCreateLayer},
        {"Client",
         "ADeletedLayerIsGoneFromAllQueries",
         "DeleteLayer: if the layer is deleted, no query, no group and no code has it any more.",
         {Ability::Writing, Ability::DeletingLayers},
         Town,
         CheckDeleteLayer},
    };
}

} // namespace Orvane::HostTests
