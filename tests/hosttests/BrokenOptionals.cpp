// SPDX-License-Identifier: MIT
#include "hosttests/BrokenHosts.h"

#include <OrvaneShellLib/ForwardingClient.h>
#include <OrvaneShellLib/RunTimeError.h>

#include <QHash>

namespace Orvane::Testing {

namespace {

class DeletesTheFirst : public ForwardingClient
{
    using ForwardingClient::ForwardingClient;
    void IManyLayers_DeleteLayers(const std::vector<qint32>& layerIDs) override
    {
        Wrapped().DeleteLayer(layerIDs.front());
    }
};

class DeletesAllOrRaises : public ForwardingClient
{
    using ForwardingClient::ForwardingClient;
    void IManyLayers_DeleteLayers(const std::vector<qint32>& layerIDs) override
    {
        for (const qint32 layerID : layerIDs) {
            const auto layers = Wrapped().LayersTable();
            layers->Index("LayerIDIDX");
            layers->Seek("=", layerID);
            if (layers->NoMatch())
                throw RunTimeError(ErrorNumber::DatabaseFailure, QStringLiteral("no such layer"));
        }
        ForwardingClient::IManyLayers_DeleteLayers(layerIDs);
    }
};

class NegativeScale : public ForwardingClient
{
    using ForwardingClient::ForwardingClient;
    double IMapScale_CurrentScale() const override { return -1; }
};

class SourcesOfAllLayers : public ForwardingClient
{
    using ForwardingClient::ForwardingClient;
    QString ILayerSource_Source(qint32) override { return QStringLiteral("town.gpkg"); }
};

class OneIDForAllCommands : public ForwardingClient
{
    using ForwardingClient::ForwardingClient;
    std::vector<NodeCommand> INodeCommands_Commands(QWidget*) override
    {
        return {{QString(), QStringLiteral("Zoom")}, {QString(), QStringLiteral("Export")}};
    }
};

class CommandsForOneLayer : public ForwardingClient
{
    using ForwardingClient::ForwardingClient;
    std::vector<NodeCommand> INodeCommands_Commands(QWidget*) override
    {
        return {{QStringLiteral("zoom"), QStringLiteral("Zoom")}};
    }
    QString INodeCommands_WhyNot(const QString&, const std::vector<qint32>& layerIDs) override
    {
        if (layerIDs.size() > 1)
            throw RunTimeError(ErrorNumber::DatabaseFailure, QStringLiteral("one layer only"));
        return {};
    }
};

class ManagesEverySecondTime : public ForwardingClient
{
    using ForwardingClient::ForwardingClient;
    bool ISchemeManager_CanManageSchemes() const override { return ++m_calls % 2 == 0; }
    mutable int m_calls = 0;
};

class DropsNotes : public ForwardingClient
{
    using ForwardingClient::ForwardingClient;
    void IMapNotes_SetNote(const QString&, const QString&) override { }
};

/// Notes that no transaction and no other program knows.
class NotesInMemory : public ForwardingClient
{
    using ForwardingClient::ForwardingClient;
    QString IMapNotes_Note(const QString& key) override { return m_notes.value(key); }
    void IMapNotes_SetNote(const QString& key, const QString& text) override { m_notes[key] = text; }
    QHash<QString, QString> m_notes;
};

class DropsNotesWhenItDraws : public ForwardingClient
{
    using ForwardingClient::ForwardingClient;
    void IMapNotes_SetNote(const QString& key, const QString& text) override
    {
        m_keys << key;
        ForwardingClient::IMapNotes_SetNote(key, text);
    }
    void IStyleEditorClient_RedrawMap() override
    {
        for (const QString& key : m_keys)
            ForwardingClient::IMapNotes_SetNote(key, {});
        Wrapped().RedrawMap();
    }
    QStringList m_keys;
};

class AlwaysKeepsNotes : public ForwardingClient
{
    using ForwardingClient::ForwardingClient;
    bool IMapNotes_KeepsNotes() const override { return true; }
};

} // namespace

std::vector<BrokenHost> HostsWithBrokenOptionals()
{
    return {
        {"ItDeletesOneOfSeveral", Behind<DeletesTheFirst>(), {"SeveralLayersAreDeletedTogether"}},
        {"ItDeletesNothingIfALayerHasGone", Behind<DeletesAllOrRaises>(), {"LayersThatHaveGoneAreLeftOut"}},
        {"ItsScaleIsNegative", Behind<NegativeScale>(), {"TheMapsScaleIsADenominator"}},
        {"ItsMissingLayersHaveASource", Behind<SourcesOfAllLayers>(), {"TheSourceOfALayerIsALineOfText"}},
        {"ItsCommandsHaveOneID", Behind<OneIDForAllCommands>(), {"CommandsHaveTextsAndIDsOfTheirOwn"}},
        {"ItsCommandsWantOneLayer", Behind<CommandsForOneLayer>(), {"ACommandIsPossibleOrSaysWhyNot"}},
        {"ItManagesSchemesEverySecondTime",
         Behind<ManagesEverySecondTime>(),
         {"WhetherSchemesAreManagedIsKnown"}},
        {"ItDropsNotes",
         Behind<DropsNotes>(),
         {"ANoteIsReadAsWritten", "ANoteStaysWithTheLayersThatChanged"}},
        {"ItsNotesKnowNoTransaction", Behind<NotesInMemory>(), {"ANoteBelongsToItsTransaction"}},
        {"ItsNotesAreGoneWhenTheMapIsDrawn",
         Behind<DropsNotesWhenItDraws>(),
         {"ANoteStaysWithTheLayersThatChanged"}},
        {"ItsNotesAreNotInTheFile", Behind<NotesInMemory, FileHost>(), {"ANoteIsKeptWithTheMap"}},
        {"ItKeepsNotesOfAMapThatIsOnlyRead",
         Behind<AlwaysKeepsNotes, ReadOnlyHost>(),
         {"AMapThatCannotBeChangedKeepsNoNotes"}},
    };
}

} // namespace Orvane::Testing
