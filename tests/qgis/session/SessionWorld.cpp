// SPDX-License-Identifier: MIT
#include "qgis/session/SessionWorld.h"

#include "hostkit/common/MapNotes.h"
#include "qgis/session/SampleLayers.h"

#include <OrvaneShellLib/IStyleEditor.h>
#include <OrvaneShellLib/IStyleEditorLibrary.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <qgsrenderer.h>
#include <qgsvectorlayer.h>
#include <qgsvectorlayerjoininfo.h>

#include <algorithm>
#include <gtest/gtest.h>
#include <utility>

namespace Orvane::Testing {

namespace {

const QString EditorID = QStringLiteral("Main");
constexpr double Faint = 0.35;

bool Is(const Paper::Row& row, const char* column)
{
    return row.at(column).toDouble() != 0;
}

// QGIS leaves out some of layers whose data are missing, and of annotations.
bool IsSavedWhole(const QgsMapLayer& layer)
{
    return layer.isValid() && layer.type() != QgsMapLayerType::AnnotationLayer;
}

// True if one of the groups around the node is listed by that text.
bool IsBelow(QgsLayerTreeNode* node, const QString& text)
{
    QStringList names;
    for (node = node->parent(); node && node->parent(); node = node->parent())
        names.prepend(node->name());
    for (; !names.isEmpty(); names.removeLast()) {
        if (names.join(QStringLiteral(" / ")) == text)
            return true;
    }
    return false;
}

} // namespace

SessionWorld::SessionWorld(unsigned seed)
    : dice(seed), session(Filled()), component(ORVANE_COMPONENT),
      user([this] { return dynamic_cast<QWidget*>(component.Library().GetStyleEditor(EditorID)); })
{
    session.ReadSchemes();
    session.Client().SetSettingsFile(folder.filePath("settings.ini"));
    session.Client().SetCommands(
        {{}, [this](const QList<QgsMapLayer*>& layers) { project.removeMapLayers(layers); }});
    component.Library().Initialise(&session.Client());
    component.Library().NewStyleEditor(EditorID)->Visible(true);
    user.ClickTab(tab);
    Settle();
    AdoptLayers();
}

SessionWorld::~SessionWorld() = default;

QgsProject& SessionWorld::Filled()
{
    AddSampleLayers(project, folder);
    Settle();
    return project;
}

void SessionWorld::Settle()
{
    for (int round = 0; round < 3; ++round)
        QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

IStyleEditorForm& SessionWorld::Form()
{
    return dynamic_cast<IStyleEditorForm&>(*component.Library().GetStyleEditor(EditorID));
}

QgsLayerTreeLayer* SessionWorld::NodeOf(qint32 layerID)
{
    return project.layerTreeRoot()->findLayer(paper.at(layerID).id);
}

QgsMapLayer* SessionWorld::AnyLayer(const std::function<bool(const QgsMapLayer&)>& suits)
{
    std::vector<QgsMapLayer*> layers;
    for (const auto& [id, layer] : paper) {
        QgsMapLayer* found = LayerOf(id);
        if (found && (!suits || suits(*found)))
            layers.push_back(found);
    }
    return layers.empty() ? nullptr : dice.OneOf(layers);
}

QgsMapLayer* SessionWorld::AnyRemovableLayer()
{
    QSet<QString> joined;
    for (const QgsMapLayer* layer : project.mapLayers()) {
        const auto* vectors = qobject_cast<const QgsVectorLayer*>(layer);
        for (const QgsVectorLayerJoinInfo& join :
             vectors ? vectors->vectorJoins() : QList<QgsVectorLayerJoinInfo>())
            joined.insert(join.joinLayerId());
    }
    return AnyLayer([&joined](const QgsMapLayer& layer) { return !joined.contains(layer.id()); });
}

QgsVectorLayer* SessionWorld::AnyPlainLayer()
{
    return qobject_cast<QgsVectorLayer*>(AnyLayer([](const QgsMapLayer& layer) {
        const auto* vectors = qobject_cast<const QgsVectorLayer*>(&layer);
        return vectors && vectors->isValid() && vectors->renderer()
            && vectors->renderer()->type() == QLatin1String("singleSymbol");
    }));
}

std::vector<qint32> SessionWorld::Members()
{
    const QStringList texts = user.ChosenTexts(tab);
    std::vector<qint32> members;
    for (const auto& [id, layer] : paper) {
        const bool isMember = std::any_of(texts.begin(), texts.end(), [&, id = id](const QString& text) {
            return tab == 2 ? paper.at(id).row.at("Name") == text : IsBelow(NodeOf(id), text);
        });
        if (isMember)
            members.push_back(id);
    }
    return members;
}

void SessionWorld::Adopt(qint32 layerID, const std::vector<std::string>& columns)
{
    const Paper::Layers stored = Paper::ReadRows(session.Store());
    for (const std::string& column : columns)
        paper.at(layerID).row[column] = stored.at(layerID).row.at(column);
}

void SessionWorld::Adopt(const std::vector<std::string>& columns)
{
    const Paper::Layers stored = Paper::ReadRows(session.Store());
    for (auto& [id, layer] : paper) {
        for (const std::string& column : columns)
            layer.row[column] = stored.at(id).row.at(column);
    }
}

void SessionWorld::AdoptLayers()
{
    const Paper::Layers stored = Paper::ReadRows(session.Store());
    std::erase_if(paper, [this](const auto& entry) { return !project.mapLayer(entry.second.id); });
    for (const auto& [id, layer] : stored) {
        QgsMapLayer* real = LayerOf(id);
        ASSERT_TRUE(real) << "a row without a layer";
        if (!paper.count(id))
            paper[id] = {real->id(), layer.row, real->opacity(), Paper::UntouchedOf(*real)};
        paper[id].row["Priority"] = layer.row.at("Priority");
    }
}

void SessionWorld::AdoptLocks()
{
    for (const auto& [id, layer] : paper) {
        const auto* vectors = qobject_cast<QgsVectorLayer*>(project.mapLayer(layer.id));
        if (vectors && vectors->isEditable())
            Adopt(id, {"locked"});
    }
}

void SessionWorld::NoteStep(const Paper::Layers& before, bool isOfSchemes)
{
    Paper::Step step = Paper::StepBetween(before, paper);
    step.isOfSchemes = isOfSchemes;
    step.ownBefore = std::exchange(ownModesBefore, ownModes);
    step.ownAfter = ownModes;
    if (step.IsEmpty())
        return;
    done.push_back(std::move(step));
    if (done.size() > size_t(UndoHistory::MaxSteps))
        done.erase(done.begin());
    undone.clear();
}

void SessionWorld::ForgetEdits()
{
    edits.clear();
    isEdited = false;
}

void SessionWorld::ApplyOnPaper()
{
    for (const qint32 id : Members()) {
        const auto* vectors = qobject_cast<QgsVectorLayer*>(LayerOf(id));
        for (const auto& [column, value] : edits) {
            const bool isRefused = column == "locked" && vectors && vectors->isEditable();
            if (paper.at(id).row[column].isValid() && !isRefused)
                paper.at(id).row[column] = value;
        }
    }
}

// ---- what must hold

void SessionWorld::Check()
{
    CheckRows();
    CheckQgis();
    CheckOrder();
    CheckUntouched();
    CheckDialog();
    QString told;
    for (const QList<QVariant>& message : failed)
        told += message.at(0).toString() + '\n';
    EXPECT_TRUE(mayFail || failed.isEmpty()) << qPrintable(told);
    failed.clear();
    mayFail = false;
}

void SessionWorld::CheckRows()
{
    const QStringList differences = Paper::Differences(paper, Paper::ReadRows(session.Store()));
    EXPECT_TRUE(differences.isEmpty()) << qPrintable(differences.join('\n'));
}

// Without the plug-in's own functions for reading layers.
void SessionWorld::CheckQgis()
{
    for (const auto& [id, layer] : paper) {
        const QgsMapLayer* real = project.mapLayer(layer.id);
        ASSERT_TRUE(real) << layer.id.toStdString();
        const std::string name = real->name().toStdString();
        EXPECT_EQ(real->name(), layer.row.at("Name").toString());
        const double mode = layer.row.at("OverrideMode").toDouble();
        EXPECT_EQ(NodeOf(id)->itemVisibilityChecked(), Is(layer.row, "Visible") && mode != 2) << name;
        if (!real->isValid())
            continue;
        EXPECT_NEAR(real->opacity(), layer.opacity * (mode == 1 ? Faint : 1), 0.001) << name;
        if (layer.row.at("Hitable").isValid())
            EXPECT_EQ(
                real->flags().testFlag(QgsMapLayer::Identifiable),
                Is(layer.row, "Hitable") && Is(layer.row, "Enquirable"))
                << name;
        const auto* vectors = qobject_cast<const QgsVectorLayer*>(real);
        if (vectors)
            EXPECT_EQ(vectors->readOnly(), Is(layer.row, "locked")) << name;
    }
}

void SessionWorld::CheckOrder()
{
    double last = 0;
    for (QgsMapLayer* layer : project.layerTreeRoot()->layerOrder()) {
        const double priority = PaperOf(*layer).row.at("Priority").toDouble();
        EXPECT_LE(last, priority) << layer->name().toStdString();
        last = priority;
    }
}

void SessionWorld::CheckUntouched()
{
    for (const auto& [id, layer] : paper) {
        if (const QgsMapLayer* real = project.mapLayer(layer.id))
            EXPECT_EQ(Paper::UntouchedOf(*real).toStdString(), layer.untouched.toStdString())
                << real->name().toStdString();
    }
}

void SessionWorld::CheckDialog()
{
    EXPECT_EQ(Form().HasPendingEdits(), isEdited);
    if (tab == 2)
        EXPECT_EQ(user.Rows(2), int(paper.size()));
    const QStringList boxes = user.TakeBoxes();
    EXPECT_TRUE(mayFail || boxes.isEmpty()) << qPrintable(boxes.join('\n'));
}

void SessionWorld::CheckSavedProject()
{
    const QString path = folder.filePath("saved.qgz");
    ASSERT_TRUE(project.write(path));
    QgsProject opened;
    ASSERT_TRUE(opened.read(path));
    ProjectSession other(opened);
    Paper::Layers expected = paper;
    Paper::Layers saved = Paper::ReadRows(other.Store());
    for (auto& [id, layer] : expected) {
        if (IsSavedWhole(*project.mapLayer(layer.id)))
            continue;
        layer.row.erase("Priority"); // the order is saved, the number is not
        saved[id].row["Priority"] = {};
    }
    const QStringList differences = Paper::Differences(expected, saved);
    EXPECT_EQ(MapNotes::ReadAll(other.Store()), MapNotes::ReadAll(session.Store()));
    EXPECT_TRUE(differences.isEmpty()) << "saved and opened:\n" << qPrintable(differences.join('\n'));
}

} // namespace Orvane::Testing
