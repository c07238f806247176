// SPDX-License-Identifier: MIT
#include "soak/PluginHost.h"

#include "hostkit/common/HostNotifications.h"
#include "hostkit/undo/UndoHistory.h"
#include "store/opening/LayerStores.h"

#include <OrvaneShellLib/IStyleEditor.h>
#include <OrvaneShellLib/IStyleEditorForm.h>
#include <OrvaneShellLib/IStyleEditorLibrary.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QTabBar>
#include <QTest>
#include <QTreeView>

#include <stdexcept>

namespace Orvane::Testing {

namespace {

const QString MainEditor = QStringLiteral("Main");
constexpr qint32 LayerCount = 12;

void FillMap(std::unique_ptr<ILayerStore> map)
{
    for (qint32 groupID : {1, 2})
        map->Execute(
            QStringLiteral("INSERT INTO LayerGroups (ID, Name, Expanded) VALUES (?1, ?2, 1)"),
            {groupID, QStringLiteral("Group %1").arg(groupID)});
    for (qint32 layerID = 1; layerID <= LayerCount; ++layerID) {
        map->Execute(
            QStringLiteral("INSERT INTO Layers (LayerID, Name, Code, Color, Priority)"
                           " VALUES (?1, ?2, ?1, ?3, ?1)"),
            {layerID, QStringLiteral("Layer %1").arg(layerID), layerID * 0x1111});
        map->Execute(
            QStringLiteral("INSERT INTO LayerGroupMembers (GroupID, LayerID, Ordering)"
                           " VALUES (?1, ?2, ?2)"),
            {1 + layerID % 2, layerID});
    }
}

std::unique_ptr<ILayerStore> OpenMap(const QString& path)
{
    if (!QFile::exists(path))
        LayerStores::Make(path, IfExists::Refuse, FillMap);
    return LayerStores::Open(path);
}

} // namespace

PluginHost::PluginHost(const QString& folder, Dice& dice)
    : m_dice(dice), m_store(OpenMap(folder + QStringLiteral("/map.ovl"))), m_client(*m_store, m_services)
{
    m_client.SetSettingsFile(folder + QStringLiteral("/settings.ini"));
    QObject::connect(
        &m_client.Notifications(), &HostNotifications::EditorShown, [this](QWidget* form) { m_form = form; });
    LoadPluginAgain();
}

void PluginHost::LoadPluginAgain()
{
    m_plugin.reset();
    m_plugin = std::make_unique<StyleEditorPlugin>();
    m_plugin->Library().Initialise(&m_client);
}

void PluginHost::OpenEditAndClose()
{
    Open();
    for (int edits = 1 + m_dice.Below(4); edits > 0; --edits)
        Edit();
    Close();
}

void PluginHost::FillHistory()
{
    Open();
    for (int step = 0; step < UndoHistory::MaxSteps; ++step) {
        ChooseLayer();
        ClickFlag();
        Press("cmdApply");
    }
    Close();
}

void PluginHost::Open()
{
    m_plugin->Library().NewStyleEditor(MainEditor)->Visible(true);
    if (!Find("picLayerStyle").isVisible())
        Press("cmdResize");
}

void PluginHost::Close()
{
    const int way = m_dice.Below(3);
    if (way == 0)
        m_form->close();
    else if (way == 1)
        m_plugin->Library().GetStyleEditor(MainEditor)->Visible(false);
    else
        dynamic_cast<IStyleEditorForm&>(*m_form).UnloadWithoutApply();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    if (m_form || m_plugin->Library().GetStyleEditor(MainEditor))
        throw std::runtime_error("the layer control is still open");
}

// ---- the user

void PluginHost::Edit()
{
    ChooseLayer();
    switch (m_dice.Below(8)) {
    case 0:
        return Rename();
    case 1:
        return ShowOtherTabs();
    case 2:
        return UndoAndRedo();
    case 3:
        StepThroughList();
        return Apply();
    default:
        ClickFlag();
        return Apply();
    }
}

void PluginHost::ChooseLayer()
{
    auto& tree = Find<QTreeView>("tvLayers2");
    const QModelIndex layer = tree.model()->index(m_dice.Below(tree.model()->rowCount()), 0);
    tree.scrollTo(layer);
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualRect(layer).center());
    QCoreApplication::processEvents();
}

void PluginHost::ClickFlag()
{
    auto* box = Find(m_dice.OneOf(std::array{"chkVisible", "chkLocked"})).findChild<QCheckBox*>();
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
}

void PluginHost::StepThroughList()
{
    auto& list = Find<QComboBox>(m_dice.OneOf(std::array{"cmbColor0", "cmbFillStyles", "cmbLineStyles"}));
    QTest::keyClick(&list, m_dice.Chance(50) ? Qt::Key_Down : Qt::Key_Up);
}

void PluginHost::Rename()
{
    auto& tree = Find<QTreeView>("tvLayers2");
    QTest::keyClick(&tree, Qt::Key_F2);
    auto& editor = Find<QLineEdit>("txtNodeName");
    editor.selectAll();
    QTest::keyClicks(&editor, QStringLiteral("Name %1").arg(m_dice.Below(100'000)));
    QTest::keyClick(&editor, Qt::Key_Return);
    QCoreApplication::processEvents();
}

void PluginHost::ShowOtherTabs()
{
    auto& tabs = Find<QTabBar>("tsLists");
    for (const int tab : {0, 2, 1}) {
        QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(tab).center());
        QCoreApplication::processEvents();
    }
}

void PluginHost::UndoAndRedo()
{
    const int steps = 1 + m_dice.Below(3);
    for (int step = 0; step < steps; ++step)
        History().Undo();
    for (int step = 0; step < steps; ++step)
        History().Redo();
}

void PluginHost::Apply()
{
    Press(m_dice.Chance(80) ? "cmdApply" : "cmdCancel");
}

void PluginHost::Press(const char* button)
{
    QTest::mouseClick(&Find(button), Qt::LeftButton);
}

template <typename Widget> Widget& PluginHost::Find(const char* name)
{
    auto* found = m_form ? m_form->findChild<Widget*>(QLatin1String(name)) : nullptr;
    if (!found)
        throw std::runtime_error(name);
    return *found;
}

} // namespace Orvane::Testing
