// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/StyleEditorPlugin.h"
#include "hostkit/undo/UndoHistory.h"
#include "qgis/plugin/ProjectSession.h"
#include "qgis/session/DialogUser.h"
#include "qgis/session/PaperProject.h"
#include "support/Dice.h"

#include <OrvaneShellLib/IStyleEditorForm.h>

#include <QSignalSpy>
#include <QTemporaryDir>
#include <qgslayertree.h>
#include <qgsproject.h>

#include <functional>
#include <optional>
#include <vector>

class QgsVectorLayer;

namespace Orvane::Testing {

/// A project with the layer control, and a paper that says what both should be. An operation changes the
/// project, or the controls, and the paper; Check compares.
class SessionWorld
{
public:
    explicit SessionWorld(unsigned seed);
    ~SessionWorld();

    // The real things.

    static void Settle();
    IStyleEditorClient& Host() { return session.Client(); }
    UndoHistory& History() { return session.Client().History(); }
    IStyleEditorForm& Form();
    QgsMapLayer* LayerOf(qint32 layerID) { return session.Mirror().Layer(layerID); }
    QgsLayerTreeLayer* NodeOf(qint32 layerID);
    /// A layer for which the condition holds, at random; nullptr without one.
    QgsMapLayer* AnyLayer(const std::function<bool(const QgsMapLayer&)>& suits = {});
    /// A layer to which no other is joined: QGIS would remove the join with it.
    QgsMapLayer* AnyRemovableLayer();
    /// A layer with one symbol in memory.
    QgsVectorLayer* AnyPlainLayer();
    qint32 IDOf(QgsMapLayer& layer) { return session.Mirror().IDOf(layer); }
    QString NewName() { return QStringLiteral("Name %1").arg(++names); }

    // The paper.

    Paper::Layer& PaperOf(QgsMapLayer& layer) { return paper.at(IDOf(layer)); }
    /// The layers that the chosen nodes stand for.
    std::vector<qint32> Members();
    /// Takes these columns over from the store, where the rule is QGIS's own.
    void Adopt(const std::vector<std::string>& columns);
    void Adopt(qint32 layerID, const std::vector<std::string>& columns);
    /// Takes over layers that came and went, with all their columns, and the draw priorities.
    void AdoptLayers();
    /// Takes over whether layers that are being edited are locked: QGIS refuses to change it.
    void AdoptLocks();
    /// Notes an operation of the dialog as one step.
    void NoteStep(const Paper::Layers& before, bool isOfSchemes = false);
    /// The user's edits are gone.
    void ForgetEdits();
    /// The edits are applied: what the layers should be then.
    void ApplyOnPaper();

    // What must hold after each operation.

    void Check();
    void CheckRows();
    /// The project, written and read again, has the same rows.
    void CheckSavedProject();

    Dice dice;
    QTemporaryDir folder;
    QgsProject project;
    ProjectSession session;
    QSignalSpy failed{&session, &ProjectSession::Failed};
    StyleEditorPlugin component;
    DialogUser user;
    int names = 0;

    Paper::Layers paper;
    std::vector<Paper::Step> done;
    std::vector<Paper::Step> undone;
    std::map<QString, Paper::Layers> schemes;
    Paper::OwnModes ownModes;
    Paper::OwnModes ownModesBefore; ///< the operation
    std::map<std::string, double> edits; ///< of the current node, by column
    bool isEdited = false; ///< edits wait in the dialog
    bool mayFail = false; ///< a message is expected in this operation
    int tab = 2;
    int steps = 0;

private:
    QgsProject& Filled();
    void CheckQgis();
    void CheckOrder();
    void CheckUntouched();
    void CheckDialog();
};

/// An operation that may occur.
struct Deed {
    const char* name;
    int weight; ///< how often it occurs, relative to the others
    std::function<void(SessionWorld&)> act;
};

/// What the user does in the dialog.
std::vector<Deed> DialogDeeds();
/// What the user shows, hides and chooses together.
std::vector<Deed> ShowingDeeds();
/// What happens to the layers' looks and properties in QGIS.
std::vector<Deed> StyleDeeds();
/// What happens to the project and its tree in QGIS.
std::vector<Deed> ProjectDeeds();

} // namespace Orvane::Testing
