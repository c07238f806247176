// SPDX-License-Identifier: MIT
#include "hosttests/CheckLists.h"
#include "hosttests/CheckRun.h"
#include "hosttests/ComponentCalls.h"
#include "hosttests/SampleContents.h"

#include <OrvaneShellLib/ILayerSource.h>
#include <OrvaneShellLib/IManyLayers.h>
#include <OrvaneShellLib/IMapScale.h>
#include <OrvaneShellLib/INodeCommands.h>
#include <OrvaneShellLib/ISchemeManager.h>
#include <OrvaneShellLib/LayerQueries.h>

#include <QSet>
#include <QWidget>

#include <cmath>

namespace Orvane::HostTests {

namespace {

// What the host implements besides IStyleEditorClient; without it, the check is ended as not run.
template <typename Interface> Interface* Offered(CheckRun& run, const char* name)
{
    auto* offered = dynamic_cast<Interface*>(&run.Client());
    if (!offered)
        run.Skip(QStringLiteral("the host does not implement ") + QLatin1String(name));
    return offered;
}

bool HasLayer(CheckRun& run, qint32 layerID)
{
    const auto layers = ComponentCalls::OpenLayersByID(run.Client());
    return ComponentCalls::SeekID(*layers, layerID);
}

void ExpectGone(CheckRun& run, qint32 layerID, qint16 code)
{
    run.ExpectIDs(
        QStringLiteral("OneLayer of the deleted layer %1").arg(layerID),
        ComponentCalls::IDsIn(run.Database(), LayerQueries::OneLayer(layerID), "LayerID"), {});
    run.Expect(!run.Client().IsCodeAssigned(code), QStringLiteral("the code %1 is still assigned").arg(code));
}

void CheckDeleteSeveral(CheckRun& run)
{
    auto* many = Offered<IManyLayers>(run, "IManyLayers");
    if (!many)
        return;
    many->DeleteLayers({TownLayer::Rivers, TownLayer::Zoning});
    const bool hasRivers = HasLayer(run, TownLayer::Rivers);
    run.Expect(
        hasRivers == HasLayer(run, TownLayer::Zoning),
        QStringLiteral("one of two layers was deleted, the other was not"));
    run.Expect(HasLayer(run, TownLayer::Roads), QStringLiteral("another layer was deleted too"));
    if (hasRivers)
        return run.Skip(QStringLiteral("the host kept the layers"));
    ExpectGone(run, TownLayer::Rivers, 12);
    ExpectGone(run, TownLayer::Zoning, 11);
    run.ExpectIDs(
        QStringLiteral("layers of their group"),
        ComponentCalls::IDsIn(run.Database(), LayerQueries::MemberLayerIDs(TownGroup::Water), "LayerID"),
        {TownLayer::Roads});
}

void CheckDeleteMissing(CheckRun& run)
{
    auto* many = Offered<IManyLayers>(run, "IManyLayers");
    if (!many)
        return;
    many->DeleteLayers({TownLayer::None, TownLayer::Rivers});
    if (HasLayer(run, TownLayer::Rivers))
        return run.Skip(QStringLiteral("the host kept the layer"));
    ExpectGone(run, TownLayer::Rivers, 12);
    run.Expect(HasLayer(run, TownLayer::Roads), QStringLiteral("another layer was deleted too"));
}

void CheckMapScale(CheckRun& run)
{
    const auto* map = Offered<IMapScale>(run, "IMapScale");
    if (!map)
        return;
    const double scale = map->CurrentScale();
    run.Expect(
        std::isfinite(scale) && scale >= 0,
        QStringLiteral("CurrentScale is %1, neither 0 nor a denominator").arg(scale));
    run.ExpectValue(QStringLiteral("CurrentScale at a second call"), map->CurrentScale(), scale);
}

void CheckSource(CheckRun& run)
{
    auto* host = Offered<ILayerSource>(run, "ILayerSource");
    if (!host)
        return;
    const QString source = host->Source(TownLayer::Rivers);
    run.Expect(
        !source.contains(QLatin1Char('\n')), QStringLiteral("Source has several lines: \"%1\"").arg(source));
    run.ExpectText(QStringLiteral("Source at a second call"), host->Source(TownLayer::Rivers), source);
    run.ExpectText(QStringLiteral("Source of a missing layer"), host->Source(TownLayer::None), {});
}

void CheckCommands(CheckRun& run)
{
    auto* host = Offered<INodeCommands>(run, "INodeCommands");
    if (!host || !HasWindows(run))
        return;
    QWidget form;
    QSet<QString> ids;
    for (const NodeCommand& command : host->Commands(&form)) {
        run.Expect(!command.text.isEmpty(), QStringLiteral("the command \"%1\" has no text").arg(command.id));
        run.Expect(
            !ids.contains(command.id), QStringLiteral("two commands have the id \"%1\"").arg(command.id));
        ids.insert(command.id);
    }
}

void CheckWhyNot(CheckRun& run)
{
    auto* host = Offered<INodeCommands>(run, "INodeCommands");
    if (!host || !HasWindows(run))
        return;
    QWidget form;
    const std::vector<NodeCommand> commands = host->Commands(&form);
    for (const NodeCommand& command : commands) {
        host->WhyNot(command.id, {TownLayer::Rivers});
        host->WhyNot(command.id, {TownLayer::Roads, TownLayer::Hidden, TownLayer::Drafts});
        run.Allow([&] { host->WhyNot(command.id, {TownLayer::None}); });
    }
}

void CheckManager(CheckRun& run)
{
    const auto* manager = Offered<ISchemeManager>(run, "ISchemeManager");
    if (!manager)
        return;
    const QStringList before = run.Client().GetSchemeNames();
    const bool can = manager->CanManageSchemes();
    run.Expect(manager->CanManageSchemes() == can, QStringLiteral("CanManageSchemes changes by itself"));
    run.ExpectText(
        QStringLiteral("the schemes after CanManageSchemes"),
        run.Client().GetSchemeNames().join(QLatin1Char('|')), before.join(QLatin1Char('|')));
}

} // namespace

std::vector<HostCheck> OptionalChecks()
{
    const std::vector<Ability> deleting{Ability::Writing, Ability::DeletingLayers};
    return {
        {"Optional", "SeveralLayersAreDeletedTogether",
         "IManyLayers::DeleteLayers: deletes all of the layers or none; no query, no group and no code has "
         "them any more.",
         deleting, Town, CheckDeleteSeveral},
        {"Optional", "LayersThatHaveGoneAreLeftOut",
         "IManyLayers::DeleteLayers: deletes the others if some of the layers have gone meanwhile.", deleting,
         Town, CheckDeleteMissing},
        {"Optional",
         "TheMapsScaleIsADenominator",
         "IMapScale::CurrentScale: a denominator above 0, or 0 if no map is shown; it does not change by "
         "itself.",
         {},
         NoContents,
         CheckMapScale},
        {"Optional",
         "TheSourceOfALayerIsALineOfText",
         "ILayerSource::Source: one line, the same at each call; empty for a missing layer.",
         {},
         Town,
         CheckSource},
        {"Optional",
         "CommandsHaveTextsAndIDsOfTheirOwn",
         "INodeCommands::Commands: each has a text, and an id that no other has.",
         {},
         Town,
         CheckCommands},
        {"Optional",
         "ACommandIsPossibleOrSaysWhyNot",
         "INodeCommands::WhyNot: raises no error for layers that exist, one or several; for a missing layer "
         "at most a RunTimeError.",
         {},
         Town,
         CheckWhyNot},
        {"Optional",
         "WhetherSchemesAreManagedIsKnown",
         "ISchemeManager::CanManageSchemes: asked whenever schemes are listed; it changes nothing, and does "
         "not change by itself.",
         {},
         NoContents,
         CheckManager},
    };
}

} // namespace Orvane::HostTests
