// SPDX-License-Identifier: MIT
#include "component/dialog/session/SessionFixture.h"

#include "component/dialog/trees/LayerTreeModel.h"
#include "ovctrls/OvCombo.h"

#include <OrvaneShellLib/IStyleEditor.h>
#include <OrvaneShellLib/IStyleEditorForm.h>

#include <QApplication>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>

#include <algorithm>

namespace Orvane::Testing {

namespace {

using namespace Paper;

const PlannedFailure NoFailure("nothing", 1, RunTimeError(1, QString()));

constexpr std::array<std::pair<Property, const char*>, 7> flagBoxes{
    {{IsVisible, "chkVisible"},
     {IsSelectable, "chkSelectable"},
     {IsLocked, "chkLocked"},
     {IsHitable, "chkHitable"},
     {IsSnapRequired, "chkSnapRequired"},
     {IsEnquirable, "chkEnquirable"},
     {UsesForSymbols, "chkUseForSymbols"}}};

constexpr std::array<std::pair<Property, const char*>, 4> dataLists{
    {{LineColour, "cmbColor0"},
     {FillForeColour, "cmbColor1"},
     {FillBackColour, "cmbColor2"},
     {Fill, "cmbFillStyles"}}};

constexpr std::array<std::pair<Property, const char*>, 5> otherControls{
    {{LineStyle, "cmbLineStyles"},
     {MinScale, "lblScaleMin"},
     {MaxScale, "lblScaleMax"},
     {DrawPriority, "lblPriority"},
     {RendererStyle, "cboStyle"}}};

QString ScaleText(std::optional<double> index)
{
    if (!index)
        return QStringLiteral("various");
    return *index == 0 ? QStringLiteral("dont care") : QStringLiteral("1:%1").arg(int(*index) * 1000);
}

QString PriorityText(std::optional<double> priority)
{
    if (!priority)
        return QStringLiteral("various");
    const QString digits = QString::number(*priority);
    return *priority == 1 ? digits + " (highest)" : *priority == 255 ? digits + " (lowest)" : digits;
}

std::optional<double> DataOf(const OvCombo& list)
{
    if (list.currentText() == QLatin1String("[various]"))
        return std::nullopt;
    return list.ItemData(list.ListIndex());
}

// The data of a line is its style, or 20 times its width.
double LineData(const Values& shown)
{
    return *shown[LineStyle] != 0 ? *shown[LineStyle] : *shown[Thickness] * 20;
}

std::vector<Branch> InOrder(std::vector<Branch> branches)
{
    for (Branch& branch : branches)
        std::sort(branch.entries.begin(), branch.entries.end(), [](const Entry& left, const Entry& right) {
            return left.layerID < right.layerID;
        });
    std::sort(branches.begin(), branches.end(), [](const Branch& left, const Branch& right) {
        return left.groupID < right.groupID;
    });
    return branches;
}

QString LinesOf(const std::vector<Branch>& branches)
{
    QStringList lines;
    for (const Branch& branch : branches) {
        lines.append(QStringLiteral("group %1 %2").arg(branch.groupID).arg(branch.text));
        for (const Entry& entry : branch.entries)
            lines.append(QStringLiteral("  %1 %2 (%3)").arg(entry.layerID).arg(entry.text).arg(entry.mode));
    }
    return lines.join('\n');
}

std::vector<Entry> EntriesBelow(const QAbstractItemModel& model, const QModelIndex& parent)
{
    std::vector<Entry> entries;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const auto node = index.data(LayerTreeModel::ReferenceRole).value<NodeReference>();
        entries.push_back({node.layerID, node.image, index.data().toString()});
    }
    return entries;
}

std::vector<Branch> BranchesOf(const QTreeView& tree, ListNumber number)
{
    const QAbstractItemModel& model = *tree.model();
    if (number == Layers)
        return model.rowCount() == 0 ? std::vector<Branch>()
                                     : std::vector{Branch{0, {}, EntriesBelow(model, {})}};
    std::vector<Branch> branches;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex index = model.index(row, 0);
        const auto node = index.data(LayerTreeModel::ReferenceRole).value<NodeReference>();
        branches.push_back({node.groupID, index.data().toString(), EntriesBelow(model, index)});
    }
    return branches;
}

} // namespace

// ---- the user

AnsweringUser::AnsweringUser()
{
    qApp->installEventFilter(this);
}

bool AnsweringUser::eventFilter(QObject* watched, QEvent* event)
{
    auto* box = qobject_cast<QMessageBox*>(watched);
    if (!box || event->type() != QEvent::Show)
        return false;
    QMetaObject::invokeMethod(
        box,
        [this, box] {
            m_boxes.append(box->text());
            const auto wanted = answer == Dialog::Answer::Yes ? QMessageBox::Yes : QMessageBox::No;
            QAbstractButton* button = box->button(wanted);
            (button ? button : box->button(QMessageBox::Ok))->click();
        },
        Qt::QueuedConnection);
    return false;
}

// ---- the map

SessionFixture::SessionFixture(unsigned seed)
    : dice(seed), dialog(map, [this](ListNumber number) { return SelectedNode(number); }),
      client(host, NoFailure)
{
    UseClient(client);
    FillMap();
}

void SessionFixture::FillMap()
{
    host.rendererStyles = {{7, "Hatched"}, {9, "Sketched"}};
    host.schemeNames = QStringList{"Day", "Night"};
    host.currentScheme = "Day";
    for (qint32 layerID = 1; layerID <= 12; ++layerID) {
        host.AddLayer(
            {.id = layerID,
             .name = NewName(),
             .code = layerID,
             .visible = dice.Chance(50),
             .locked = dice.Chance(30),
             .hitable = dice.Chance(70),
             .color = qint32(dice.Chance(30) ? 0xFF0000FFu : 0x00808080u),
             .minVisScale = 1000.0 * dice.Below(5),
             .maxVisScale = dice.Chance(50) ? 256000.0 : 20000.0,
             .style = dice.OneOf(std::vector<qint32>{0, 7, 9}),
             .overrideMode = qint32(dice.Below(3)),
             .systemLayer = layerID % 5 == 0});
    }
    for (qint32 groupID = 1; groupID <= 4; ++groupID)
        host.AddGroup(
            {.id = groupID,
             .name = NewName(),
             .ordering = groupID,
             .expanded = dice.Chance(50),
             .members = {groupID, groupID + 2, groupID + 8}});
    map = ReadMap(host.PlainDatabase());
}

// ---- actions and observations

void SessionFixture::OpenEditor()
{
    const QString stored = StoredViewState();
    Open();
    dialog.Open(stored.contains("SCHEMES") ? 3 : stored.contains("GROUPS") ? 1 : 2);
}

bool SessionFixture::CanEdit()
{
    if (!dialog.CanEdit())
        return false;
    if (!Find("picLayerStyle").isVisible())
        Click("cmdResize");
    return true;
}

Dialog::Answer SessionFixture::DecideAnswer()
{
    return user.answer = dice.Chance(60) ? Dialog::Answer::Yes : Dialog::Answer::No;
}

void SessionFixture::Settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

QTreeView& SessionFixture::Tree(ListNumber number)
{
    return Find<QTreeView>(number == Groups ? "tvLayers1" : "tvLayers2");
}

Node SessionFixture::NodeAt(const QModelIndex& index)
{
    const auto node = index.data(LayerTreeModel::ReferenceRole).value<NodeReference>();
    return {node.isGroup, node.groupID, node.layerID};
}

std::optional<Node> SessionFixture::SelectedNode(ListNumber number)
{
    const QModelIndexList selected = Tree(number).selectionModel()->selectedIndexes();
    return selected.isEmpty() ? std::nullopt : std::optional(NodeAt(selected.first()));
}

QString SessionFixture::NewName()
{
    QString letters;
    for (int rest = ++m_names; rest > 0; rest /= 5)
        letters += QLatin1Char("bcdfg"[rest % 5]);
    return QStringLiteral("Name ") + letters;
}

void SessionFixture::StartAgain(bool hasFailed)
{
    client.Plan(NoFailure);
    if (!hasFailed)
        return;
    user.answer = Dialog::Answer::No;
    Editor().RefreshGroups();
    EditorForm().Filter(EditorForm().Filter());
    ClickTab(3);
    ClickTab(2);
    Settle();
    user.TakeBoxes();
    host.ClearLog();
    m_redraws = dialog.redraws;
    map = ReadMap(host.PlainDatabase());
    for (const ListNumber number : {Groups, Layers})
        dialog.lists[number].current = SelectedNode(number);
    dialog.ForgetLists();
    dialog.shownList = Groups;
    dialog.isModified = false;
    dialog.RefreshGroups();
    dialog.ShowTab(2, Dialog::Answer::No);
}

// ---- comparing

void SessionFixture::Check()
{
    EXPECT_EQ(user.TakeBoxes(), dialog.TakeBoxes());
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr) << "the pointer stays busy";
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(host.Log().CallsTo("RedrawMap").size(), dialog.redraws - m_redraws);
    m_redraws = dialog.redraws;
    host.ClearLog();
    const QStringList differences = Differences(map, ReadMap(host.PlainDatabase()));
    EXPECT_TRUE(differences.isEmpty()) << qPrintable(differences.join('\n'));
    EXPECT_EQ(Find<QTabBar>("tsLists").currentIndex() + 1, dialog.tab);
    CheckLists();
    CheckPanel();
}

void SessionFixture::CheckLists()
{
    for (const ListNumber number : {Groups, Layers}) {
        CheckNodes(number, dialog.lists[number].branches);
        EXPECT_TRUE(SelectedNode(number) == dialog.lists[number].current) << "list " << number;
    }
    const QTreeView& groups = Tree(Groups);
    for (int row = 0; row < groups.model()->rowCount(); ++row) {
        const QModelIndex index = groups.model()->index(row, 0);
        const auto group = map.groups.find(NodeAt(index).groupID);
        if (group != map.groups.end()) {
            EXPECT_EQ(groups.isExpanded(index), group->second.isExpanded) << group->first;
        }
    }
}

void SessionFixture::CheckNodes(ListNumber number, const std::vector<Branch>& expected)
{
    const auto shown = InOrder(BranchesOf(Tree(number), number));
    EXPECT_EQ(LinesOf(shown), LinesOf(InOrder(expected))) << "list " << number;
}

void SessionFixture::CheckPanel()
{
    EXPECT_EQ(CanApply(), dialog.isModified);
    const bool isCovered = Find<QStackedWidget>("stkSettings").currentWidget() != &Find("scrSettings");
    EXPECT_EQ(isCovered, !dialog.CanEdit());
    EXPECT_EQ(PressedModes(), dialog.panel.mode);
    EXPECT_EQ(TextOf("lblCode"), dialog.panel.code);
    EXPECT_EQ(IsEnabled("lblCode") || dialog.tab != 2, dialog.panel.canEditCode || dialog.tab != 2);
    if (!dialog.CanEdit())
        return;
    CheckControls();
    CheckMarks();
}

void SessionFixture::CheckControls()
{
    const Values& shown = dialog.panel.shown;
    for (const auto& [flag, name] : flagBoxes)
        EXPECT_EQ(CheckState(name), shown[flag] ? int(*shown[flag]) : 2) << name;
    for (const auto& [property, name] : dataLists)
        EXPECT_EQ(DataOf(Find<OvCombo>(name)), shown[property]) << name;
    const auto line = DataOf(Find<OvCombo>("cmbLineStyles"));
    EXPECT_EQ(line, shown[LineStyle] ? std::optional(LineData(shown)) : std::nullopt);
    EXPECT_EQ(TextOf("lblScaleMin"), ScaleText(shown[MinScale]));
    EXPECT_EQ(TextOf("lblScaleMax"), ScaleText(shown[MaxScale]));
    EXPECT_EQ(TextOf("lblPriority"), PriorityText(shown[DrawPriority]));
    const auto& styles = Find<QComboBox>("cboStyle");
    EXPECT_EQ(styles.currentIndex() >= 0, shown[RendererStyle].has_value());
    EXPECT_EQ(styles.currentData().toDouble(), shown[RendererStyle].value_or(0));
    const bool isHitable = shown[IsHitable] != 0.0;
    EXPECT_EQ(IsEnabled("chkSelectable"), isHitable);
    EXPECT_EQ(IsEnabled("chkEnquirable"), isHitable);
}

void SessionFixture::CheckMarks()
{
    const auto check = [this](const auto& controls) {
        for (const auto& [property, name] : controls)
            EXPECT_EQ(IsUnderlined(name), dialog.panel.marked.count(property) > 0) << name;
    };
    check(flagBoxes);
    check(dataLists);
    check(otherControls);
    EXPECT_EQ(IsUnderlined("lblCode"), dialog.panel.isCodeMarked);
}

} // namespace Orvane::Testing
