// SPDX-License-Identifier: MIT
#include "benchmarks/layers/BareLoops.h"
#include "benchmarks/layers/BareSql.h"
#include "benchmarks/layers/DialogDesk.h"
#include "benchmarks/layers/LayerJobs.h"
#include "benchmarks/layers/MapCopy.h"
#include "benchmarks/layers/YesToAll.h"
#include "hostkit/schemes/SchemeColumns.h"
#include "hostkit/undo/UndoHistory.h"

#include <QComboBox>
#include <QTabBar>

#include <memory>

namespace Orvane::Benchmarks {

namespace {

const QString SchemesTab = QStringLiteral("SCHEMES");
const QString NewScheme = QStringLiteral("New");
constexpr int NumberOfListTab = 1;
constexpr int NumberOfSchemesTab = 2;

// ---- with SQLite's C API alone

/// A map with schemes, whose present one changes to and fro.
class BareSchemes
{
public:
    explicit BareSchemes(int layerCount) : m_map(MapWithSchemes(layerCount)), m_sql(m_map.Path())
    {
        for (const QString& scheme : {FirstScheme, SecondScheme})
            m_switches.push_back(m_sql.Prepared(SwitchingTo(scheme)));
        m_create.push_back(m_sql.Prepared("INSERT INTO LayerSchemes (SchemeID, Name) VALUES (1000, 'New')"));
        m_create.push_back(m_sql.Prepared(
            "INSERT INTO LayerSchemeValues (SchemeID, LayerID, " + SchemeColumns::List().toUtf8()
            + ") SELECT 1000, LayerID, " + SchemeColumns::List().toUtf8() + " FROM Layers"));
    }

    void Switch()
    {
        m_isFirst = !m_isFirst;
        m_sql.Execute("BEGIN");
        m_sql.Run(m_switches[m_isFirst ? 0 : 1].get());
        m_sql.Execute("COMMIT");
    }

    void Create() { m_sql.RunAll(m_create); }

    void Drop()
    {
        m_sql.Execute("DELETE FROM LayerSchemeValues WHERE SchemeID = 1000");
        m_sql.Execute("DELETE FROM LayerSchemes WHERE SchemeID = 1000");
    }

    QString Path() const { return m_map.Path(); }

private:
    static QByteArray SwitchingTo(const QString& scheme)
    {
        return "UPDATE Layers SET " + SchemeColumns::Assignments().toUtf8()
            + " FROM LayerSchemeValues WHERE LayerSchemeValues.LayerID = Layers.LayerID"
              " AND LayerSchemeValues.SchemeID = (SELECT SchemeID FROM LayerSchemes WHERE Name = '"
            + scheme.toUtf8() + "')";
    }

    MapCopy m_map;
    BareSql m_sql;
    std::vector<BareSql::Statement> m_switches;
    std::vector<BareSql::Statement> m_create;
    bool m_isFirst = true;
};

Work BareCreate(const QString&, const JobSize& size)
{
    auto schemes = std::make_shared<BareSchemes>(size.layers);
    return {[schemes] { schemes->Drop(); }, [schemes] { schemes->Create(); }};
}

// To take back a switch, the same columns of the same rows are written.
Work BareSwitch(const QString&, const JobSize& size)
{
    return [schemes = std::make_shared<BareSchemes>(size.layers)] { schemes->Switch(); };
}

Work BareRead(const QString&, const JobSize& size)
{
    auto schemes = std::make_shared<BareSchemes>(size.layers);
    auto loops = std::make_shared<BareLoops>(schemes->Path());
    return {[schemes] { schemes->Switch(); }, [loops] { loops->ReadFlatList(); }};
}

// ---- with the host kit, and in the dialog

/// A host that has a map with schemes of its own open, without the dialog.
struct SchemeHost {
    explicit SchemeHost(int layerCount)
        : map(MapWithSchemes(layerCount)), database(SqliteLayerDatabase::Open(map.Path()))
    {
    }

    IStyleEditorClient& Host() { return client; }
    void Switch()
    {
        Host().LoadScheme(Host().GetCurrentScheme() == FirstScheme ? SecondScheme : FirstScheme);
    }

    MapCopy map;
    std::unique_ptr<SqliteLayerDatabase> database;
    StandardShellServices services;
    StandardClient client{*database, services};
};

void DropNewScheme(IStyleEditorClient& host)
{
    if (host.GetSchemeNames().contains(NewScheme))
        host.DeleteScheme(NewScheme);
}

Work HostCreate(const QString&, const JobSize& size)
{
    auto host = std::make_shared<SchemeHost>(size.layers);
    return {[host] { DropNewScheme(host->Host()); }, [host] { host->Host().CreateScheme(NewScheme); }};
}

Work HostSwitch(const QString&, const JobSize& size)
{
    return [host = std::make_shared<SchemeHost>(size.layers)] { host->Switch(); };
}

Work HostUndo(const QString&, const JobSize& size)
{
    auto host = std::make_shared<SchemeHost>(size.layers);
    const auto switched = [host] {
        host->Switch();
        if (!host->client.History().CanUndo())
            qFatal("the switch of schemes cannot be undone");
    };
    return {switched, [host] { host->client.History().Undo(); }};
}

/// The dialog on a map with schemes of its own, and a user who switches there.
class SchemeDesk
{
public:
    explicit SchemeDesk(int layerCount) : m_map(MapWithSchemes(layerCount)), m_desk(m_map.Path(), SchemesTab)
    {
    }

    void ShowTab(int number)
    {
        m_desk.Find<QTabBar>("tsLists").setCurrentIndex(number);
        Desk::Paint();
    }

    void Switch()
    {
        IStyleEditorClient& host = m_desk.Client();
        const QString wanted = host.GetCurrentScheme() == FirstScheme ? SecondScheme : FirstScheme;
        auto& list = m_desk.Find<QComboBox>("cmbScheme");
        list.setCurrentText(wanted);
        emit list.textActivated(wanted);
        Desk::Paint();
        if (host.GetCurrentScheme() != wanted)
            qFatal("the dialog has not switched to the other scheme");
    }

private:
    MapCopy m_map;
    YesToAll m_answers;
    OpenDesk m_desk;
};

Work DialogSwitch(const QString&, const JobSize& size)
{
    return [desk = std::make_shared<SchemeDesk>(size.layers)] { desk->Switch(); };
}

Work DialogRead(const QString&, const JobSize& size)
{
    auto desk = std::make_shared<SchemeDesk>(size.layers);
    const auto before = [desk] {
        desk->ShowTab(NumberOfSchemesTab);
        desk->Switch();
    };
    return {before, [desk] { desk->ShowTab(NumberOfListTab); }};
}

const Registration Registrations[] = {
    {Job::CreateScheme, BareLevel, BareCreate},   {Job::CreateScheme, "host", HostCreate},
    {Job::SwitchScheme, BareLevel, BareSwitch},   {Job::SwitchScheme, "host", HostSwitch},
    {Job::SwitchScheme, "dialog", DialogSwitch},  {Job::UndoSwitch, BareLevel, BareSwitch},
    {Job::UndoSwitch, "host", HostUndo},          {Job::ReadAfterSwitch, BareLevel, BareRead},
    {Job::ReadAfterSwitch, "dialog", DialogRead},
};

} // namespace

} // namespace Orvane::Benchmarks
