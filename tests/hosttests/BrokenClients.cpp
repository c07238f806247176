// SPDX-License-Identifier: MIT
#include "hosttests/BrokenHosts.h"

#include <OrvaneShellLib/ForwardingClient.h>
#include <OrvaneShellLib/ForwardingShellServices.h>
#include <OrvaneShellLib/RunTimeError.h>

#include <QSet>

#include <algorithm>
#include <cmath>
#include <map>

namespace Orvane::Testing {

namespace {

[[noreturn]] void Refuse(const char* text)
{
    throw RunTimeError(ErrorNumber::DatabaseFailure, QString::fromLatin1(text));
}

class WithoutLayersTable : public ForwardingClient
{
    using ForwardingClient::ForwardingClient;
    std::unique_ptr<IRecordset> IStyleEditorClient_LayersTable() override { return nullptr; }
};

class OneNameForAll : public ForwardingClient
{
    using ForwardingClient::ForwardingClient;
    QString IStyleEditorClient_LayerDisplayName(qint32) override { return QStringLiteral("Layer"); }
};

class WantsNames : public ForwardingClient
{
    using ForwardingClient::ForwardingClient;
    QString IStyleEditorClient_LayerDisplayName(qint32 layerID) override
    {
        QString name = Wrapped().LayerDisplayName(layerID);
        if (name.isEmpty())
            Refuse("no name");
        return name;
    }
};

class RenamesNothing : public ForwardingClient
{
    using ForwardingClient::ForwardingClient;
    void IStyleEditorClient_RenameLayer(qint32, const QString&) override { }
    void IStyleEditorClient_RenameGroup(qint32, const QString&) override { }
};

class AllCodesAssigned : public ForwardingClient
{
    using ForwardingClient::ForwardingClient;
    bool IStyleEditorClient_IsCodeAssigned(qint16) override { return true; }
};

class RemembersCodes : public ForwardingClient
{
    using ForwardingClient::ForwardingClient;
    bool IStyleEditorClient_IsCodeAssigned(qint16 code) override
    {
        const auto known = m_known.try_emplace(code, Wrapped().IsCodeAssigned(code)).first;
        return known->second;
    }
    std::map<qint16, bool> m_known;
};

class OneScaleOff : public ForwardingClient
{
    using ForwardingClient::ForwardingClient;
    double IStyleEditorClient_DialogScaleToStored(qint32 index) const override
    {
        return Wrapped().DialogScaleToStored(std::min(index + 1, 255));
    }
};

class FractionsOfScales : public ForwardingClient
{
    using ForwardingClient::ForwardingClient;
    double IStyleEditorClient_DialogScaleToStored(qint32 index) const override { return index / 4.0; }
    qint32 IStyleEditorClient_StoredScaleToDialog(double stored) const override
    {
        return qint32(std::clamp(stored * 4, 0.0, 256.0));
    }
};

class ScalesWithoutEnd : public ForwardingClient
{
    using ForwardingClient::ForwardingClient;
    qint32 IStyleEditorClient_StoredScaleToDialog(double stored) const override
    {
        return qint32(std::clamp(stored, -1.0, 1e6));
    }
};

class StandardTwice : public ForwardingClient
{
    using ForwardingClient::ForwardingClient;
    std::vector<RendererStyle> IStyleEditorClient_RendererStyles() const override
    {
        return {{0, QStringLiteral("Standard")}};
    }
};

class AnotherPrefixEachTime : public ForwardingClient
{
    using ForwardingClient::ForwardingClient;
    QString IStyleEditorClient_StyleCommandPrefix() const override { return QString::number(++m_calls); }
    mutable int m_calls = 0;
};

class WantsChanges : public ForwardingClient
{
    using ForwardingClient::ForwardingClient;
    void IStyleEditorClient_LayerChanged(qint32 layerID) override
    {
        m_changed = true;
        Wrapped().LayerChanged(layerID);
    }
    void IStyleEditorClient_RedrawMap() override
    {
        if (!m_changed)
            Refuse("nothing to redraw");
        Wrapped().RedrawMap();
    }
    bool m_changed = false;
};

class KeepsNoSettings : public ForwardingClient
{
    using ForwardingClient::ForwardingClient;
    void IStyleEditorClient_WriteSetting(QWidget*, const QString&, const QString&) override { }
};

class ClosesOnce : public ForwardingClient
{
    using ForwardingClient::ForwardingClient;
    void IStyleEditorClient_EditorClosed(QWidget* form) override
    {
        if (m_closed.contains(form))
            Refuse("closed already");
        m_closed.insert(form);
        Wrapped().EditorClosed(form);
    }
    QSet<QWidget*> m_closed;
};

class CreatesNothing : public ForwardingClient
{
    using ForwardingClient::ForwardingClient;
    qint32 IStyleEditorClient_CreateLayer() override { return 999; }
};

class ChangesServices : public ForwardingClient
{
public:
    explicit ChangesServices(IStyleEditorClient& client)
        : ForwardingClient(client), m_services(*client.GetShellServices())
    {
    }

private:
    class FaultyServices : public ForwardingShellServices
    {
        using ForwardingShellServices::ForwardingShellServices;
        qint32 IShellServices_IndexFromScale(double denominator) const override
        {
            return std::min(Wrapped().IndexFromScale(denominator) + 1, 255);
        }
        MonochromeBitmap IShellServices_FillPattern(int, int) const override { return {9, 8, "12345678"}; }
        qint32 IShellServices_ListBackColour() const override { return -1; }
    };

    IShellServices* IStyleEditorClient_GetShellServices() override { return &m_services; }

    FaultyServices m_services;
};

class AnotherCurrentScheme : public ForwardingClient
{
    using ForwardingClient::ForwardingClient;
    QString IStyleEditorClient_GetCurrentScheme() override { return QStringLiteral("(none)"); }
};

class CreatesNoScheme : public ForwardingClient
{
    using ForwardingClient::ForwardingClient;
    void IStyleEditorClient_CreateScheme(const QString&) override { }
};

class CreatesSchemesTwice : public ForwardingClient
{
    using ForwardingClient::ForwardingClient;
    void IStyleEditorClient_CreateScheme(const QString& name) override
    {
        if (!Wrapped().GetSchemeNames().contains(name))
            Wrapped().CreateScheme(name);
    }
};

class LoadsNoScheme : public ForwardingClient
{
    using ForwardingClient::ForwardingClient;
    void IStyleEditorClient_LoadScheme(const QString&) override { }
};

class SavesNoScheme : public ForwardingClient
{
    using ForwardingClient::ForwardingClient;
    void IStyleEditorClient_SaveScheme(const QString&) override { }
};

class DeletesNoScheme : public ForwardingClient
{
    using ForwardingClient::ForwardingClient;
    void IStyleEditorClient_DeleteScheme(const QString&) override { }
};

class LoadsNames : public ForwardingClient
{
    using ForwardingClient::ForwardingClient;
    void IStyleEditorClient_LoadScheme(const QString& name) override
    {
        Wrapped().LoadScheme(name);
        Wrapped().RenameLayer(1, QStringLiteral("roads"));
    }
};

std::vector<BrokenHost> ClientsWithBrokenSchemes()
{
    return {
        {"ItsCurrentSchemeIsNotListed",
         Behind<AnotherCurrentScheme>(),
         {"ThereIsACurrentScheme", "AnEmptyMapHasACurrentSchemeToo"}},
        {"ItCreatesNoScheme", Behind<CreatesNoScheme>(), {"ANewSchemeIsListed"}},
        {"ItTakesANameTwice", Behind<CreatesSchemesTwice>(), {"ATakenNameIsRefused"}},
        {"ItLoadsNoScheme",
         Behind<LoadsNoScheme>(),
         {"ALoadedSchemeIsCurrent", "ALoadedSchemeGivesItsValues", "LoadingTheCurrentSchemeReverts"}},
        {"ItSavesNoScheme",
         Behind<SavesNoScheme>(),
         {"ASavedSchemeHasThePresentValues", "SchemesAreSwitched"}},
        {"ItDeletesNoScheme", Behind<DeletesNoScheme>(), {"ADeletedSchemeIsGone"}},
        {"ItLoadsNames", Behind<LoadsNames>(), {"NamesAndCodesAreNotPartOfAScheme"}},
    };
}

} // namespace

std::vector<BrokenHost> HostsWithBrokenClients()
{
    std::vector<BrokenHost> hosts{
        {"ItHasNoLayersTable", Behind<WithoutLayersTable>(), {"ItsObjectsStayTheSame"}},
        {"ItListsAllLayersUnderOneName", Behind<OneNameForAll>(), {"LayersAreListedByTheirNames"}},
        {"ItWantsNames", Behind<WantsNames>(), {"ALayerWithoutANameCanBeListed"}},
        {"ItRenamesNothing",
         Behind<RenamesNothing>(),
         {"ARenamedLayerHasItsNewNameEverywhere", "ARenamedGroupHasItsNewNameEverywhere",
          "ARenamedLayerTakesItsPlaceInTheList", "ARenamedLayerIsListed"}},
        {"ItHasAllCodesAssigned",
         Behind<AllCodesAssigned>(),
         {"ACodeIsAssignedIfALayerHasIt", "ADeletedLayerIsGoneFromAllQueries"}},
        {"ItRemembersCodes", Behind<RemembersCodes>(), {"AChangedCodeIsKnownAtOnce"}},
        {"ItStoresTheNextScale", Behind<OneScaleOff>(), {"EachScaleIndexComesBack"}},
        {"ItStoresFractions", Behind<FractionsOfScales>(), {"EachScaleIndexComesBackAsAWholeNumber"}},
        {"ItsScalesHaveNoEnd", Behind<ScalesWithoutEnd>(), {"AnyStoredScaleIsAnIndex"}},
        {"ItListsStandardTwice", Behind<StandardTwice>(), {"RendererStylesHaveNumbersOfTheirOwn"}},
        {"ItChangesItsPrefix", Behind<AnotherPrefixEachTime>(), {"WhatIsReadOnceStaysTheSame"}},
        {"ItWantsChanges", Behind<WantsChanges>(), {"RedrawMapNeedsNoChanges"}},
        {"ItKeepsNoSettings", Behind<KeepsNoSettings>(), {"SettingsAreReadAsWritten", "ItsPlaceIsKept"}},
        {"ItClosesAnEditorOnce", Behind<ClosesOnce>(), {"AnEditorIsShownAndClosedTwice"}},
        {"ItCreatesNoLayer", Behind<CreatesNothing>(), {"ANewLayerHasARow", "ANewLayerIsListed"}},
        {"ItsServicesAreWrong",
         Behind<ChangesServices>(),
         {"EachScaleComesBack", "AScaleBetweenTwoIsTheNearest", "EachFillStyleHasAPattern",
          "TheColourOfListsIsAColour"}},
    };
    for (BrokenHost& host : ClientsWithBrokenSchemes())
        hosts.push_back(std::move(host));
    return hosts;
}

} // namespace Orvane::Testing
