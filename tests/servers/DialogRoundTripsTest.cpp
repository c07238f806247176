// SPDX-License-Identifier: MIT
#include "component/dialog/window/frmLayerStyles.h"
#include "component/entry/StyleEditorLib.h"
#include "component/model/LayerStyle.h"
#include "component/model/LayerStyleApplying.h"
#include "component/model/LayerStyleLoading.h"
#include "component/model/LayerTreeReader.h"
#include "ovctrls/CheckBoxPlus.h"
#include "servers/ServerMapTest.h"

#include <OrvaneShellLib/ForwardingClient.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QAbstractButton>
#include <QCheckBox>
#include <QCoreApplication>
#include <QTest>
#include <QTreeView>

#include <optional>

namespace Orvane::Testing {

namespace {

const QString EditorID = QStringLiteral("Main");

/// Opens each editor in the same view state and stores none.
class FixedState final : public ForwardingClient
{
public:
    FixedState(IStyleEditorClient& client, const QString& tab)
        : ForwardingClient(client), m_state(QStringLiteral("12000:9000:%1:EXPANDED").arg(tab))
    {
    }

private:
    QString IStyleEditorClient_ReadSetting(QWidget*, const QString&) override { return m_state; }
    void IStyleEditorClient_WriteSetting(QWidget*, const QString&, const QString&) override { }

    QString m_state;
};

class DialogRoundTripsTest : public ServerMapTest
{
protected:
    void TearDown() override
    {
        m_library.reset();
        m_state.reset();
    }

    void Open(const char* tab)
    {
        m_state = std::make_unique<FixedState>(*m_client, QLatin1String(tab));
        m_library = std::make_unique<StyleEditorLib>(
            [] { return std::make_unique<frmLayerStyles>(); }, QStringLiteral("none"));
        Library().Initialise(m_state.get());
        Library().NewStyleEditor(EditorID);
        Library().GetStyleEditor(EditorID)->Visible(true);
        QCoreApplication::processEvents();
    }
    void Close()
    {
        Form().UnloadWithoutApply();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    StyleEditorWindow& Form()
    {
        return dynamic_cast<StyleEditorWindow&>(*Library().GetStyleEditor(EditorID));
    }
    // As the layer control does when it opens on the map for the first time.
    void MakeSchemes()
    {
        InEventLoop([&] {
            Open("LAYERS");
            Close();
        });
    }
    template <typename Widget> Widget& Find(const char* name)
    {
        return *Form().findChild<Widget*>(QLatin1String(name));
    }
    // As a click on the last group does.
    void SelectLargeGroup()
    {
        auto& tree = Find<QTreeView>("tvLayers1");
        const QModelIndex group = tree.model()->index(tree.model()->rowCount() - 1, 0);
        tree.scrollTo(group);
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualRect(group).center());
        QCoreApplication::processEvents();
    }

private:
    IStyleEditorLibrary& Library() { return *m_library; }

    std::unique_ptr<FixedState> m_state;
    std::unique_ptr<StyleEditorLib> m_library;
};

} // namespace

TEST_F(DialogRoundTripsTest, AMapsFirstSchemeIsMadeInFewHoweverManyColumnsItsTablesHave)
{
    InEventLoop([&] {
        EXPECT_LE(RoundTripsOf([&] { Open("LAYERS"); }), 30);
        Close();
    });
}

TEST_F(DialogRoundTripsTest, TheListOpensInAHandful)
{
    MakeSchemes();
    InEventLoop([&] {
        EXPECT_LE(RoundTripsOf([&] { Open("LAYERS"); }), 8);
        Close();
    });
}

TEST_F(DialogRoundTripsTest, TheTreeOpensInAHandful)
{
    MakeSchemes();
    InEventLoop([&] {
        EXPECT_LE(RoundTripsOf([&] { Open("GROUPS"); }), 9);
        Close();
    });
}

TEST_F(DialogRoundTripsTest, AGroupOfAThousandLayersIsShownAndStoredInAHandful)
{
    MakeSchemes();
    InEventLoop([&] {
        Open("GROUPS");
        EXPECT_LE(RoundTripsOf([&] { SelectLargeGroup(); }), 3);
        QTest::mouseClick(Find<CheckBoxPlus>("chkVisible").findChild<QCheckBox*>(), Qt::LeftButton);
        EXPECT_LE(
            RoundTripsOf([&] {
                QTest::mouseClick(&Find<QAbstractButton>("cmdApply"), Qt::LeftButton);
                QCoreApplication::processEvents();
            }),
            7);
        Close();
    });
    const auto hidden
        = m_store->OpenQuery(QStringLiteral("SELECT count(*) AS Layers FROM Layers WHERE NOT Visible"));
    EXPECT_EQ(ToInt32(hidden->Field("Layers")), 1000);
}

// The model alone, without what the lists and the host read after it.
TEST_F(DialogRoundTripsTest, AGroupOfAThousandLayersIsStoredAndReadAgainInSeven)
{
    LayerStyle style;
    const ReadingResult reading = LoadGroupStyle(*m_client, LargeGroup, style);
    StyleEdits edits{style, 1, [] { return Value(1); }, style};
    edits.seen = reading.seen;
    edits.style.lsSet(Slot::Visible, false);
    const auto applyAndRead = [&] {
        EXPECT_EQ(ApplyGroupStyle(*m_client, LargeGroup, edits).layers, 1000);
        LoadGroupStyle(*m_client, LargeGroup, style);
    };
    EXPECT_LE(RoundTripsOf(applyAndRead), 7);
    EXPECT_TRUE(style.lsGet(Slot::Visible).IsIdenticalTo(false));
}

} // namespace Orvane::Testing
