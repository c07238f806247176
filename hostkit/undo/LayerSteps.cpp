// SPDX-License-Identifier: MIT
#include "hostkit/undo/LayerSteps.h"

#include "hostkit/common/HostErrors.h"
#include "hostkit/common/HostNotifications.h"
#include "hostkit/common/HostTables.h"
#include "hostkit/common/LayerNames.h"
#include "hostkit/schemes/LayerSchemes.h"
#include "hostkit/undo/LayerChanges.h"
#include "hostkit/windows/EditorWindows.h"
#include "hostkit/windows/LongWork.h"
#include "messages/NameInText.h"
#include "store/ChangeRecorder.h"
#include "store/ILayerStore.h"
#include "store/KeyLists.h"

#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QHash>
#include <QLocale>
#include <QScopedValueRollback>

namespace Orvane {

namespace {

QHash<qint32, QString> GroupNames(ILayerStore& database, const std::vector<qint32>& groupIDs)
{
    QHash<qint32, QString> names;
    KeyLists::ForEachBlock(groupIDs, {}, [&](const QString& list, const std::vector<Value>& values) {
        const auto groups = database.OpenQuery(
            QStringLiteral("SELECT ID, Name FROM LayerGroups WHERE ID IN ") + list, values);
        for (; !groups->AtEOF(); groups->MoveNext())
            names.insert(ToInt32(groups->Field("ID")), ToTextOrNone(groups->Field("Name")));
    });
    return names;
}

} // namespace

LayerSteps::LayerSteps(
    ILayerStore& database, LayerNames& names, EditorWindows& windows, HostNotifications& notifications)
    : m_database(database), m_names(names), m_windows(windows),
      m_notifications(notifications), m_surroundings{
                                          database, [this] { return Window(); },
                                          [this] { RequireNoPendingEdits(); },
                                          [this](const Changeset& changed) { m_untold.push_back(changed); }}
{
    m_endOfEdits.setSingleShot(true);
    QObject::connect(&m_endOfEdits, &QTimer::timeout, &m_endOfEdits, [this] { EndEdits(); });
    m_history.SetBeforeStep([this] { EndEdits(); });
    m_history.SetAfterStep([this] { Tell(); });
    m_history.SetLongWork([this](const QString& what, const std::function<void()>& act) {
        const LongWork work(m_database, what, Window());
        act();
    });
}

LayerSteps::~LayerSteps() = default;

QWidget* LayerSteps::Window() const
{
    return m_windows.FrontWindow();
}

void LayerSteps::Record(const std::function<QString()>& act, ChangeStep::Joins joins)
{
    EndEdits();
    const QScopedValueRollback deeper(m_depth, m_depth + 1);
    if (m_recorder) {
        act();
        return;
    }
    m_recorder = m_database.IsReadOnly() ? nullptr : m_database.RecordChanges();
    QString text;
    try {
        text = act();
    } catch (...) {
        m_recorder.reset();
        throw;
    }
    Keep([&](const Changeset&) { return text; }, joins);
}

void LayerSteps::BeginEdits()
{
    if (m_recorder || m_database.IsReadOnly())
        return;
    m_recorder = m_database.RecordChanges();
    m_endOfEdits.start();
}

void LayerSteps::EndEdits()
{
    m_endOfEdits.stop();
    if (m_recorder && !IsRecording())
        Keep([this](const Changeset& changes) { return EditText(changes); }, ChangeStep::Joins::No);
}

// The operation is already done. If its step cannot be kept, that must not look like a failure of the
// operation.
void LayerSteps::Keep(const std::function<QString(const Changeset&)>& text, ChangeStep::Joins joins)
{
    const std::unique_ptr<ChangeRecorder> recorder = std::move(m_recorder);
    if (!recorder)
        return;
    try {
        Changeset changes = recorder->Changes().Without(HostTables::TableName);
        if (changes.IsEmpty())
            return;
        const QString named = text(changes);
        m_history.Add(std::make_unique<ChangeStep>(m_surroundings, named, std::move(changes), joins));
    } catch (const std::exception& error) {
        m_history.ForgetUndone();
        emit m_notifications.StepNotRecorded(QString::fromUtf8(error.what()));
    }
}

QString LayerSteps::EditText(const Changeset& changes)
{
    const LayerChanges edited = LayerChanges::Of(changes);
    if (edited.changed.size() != 1)
        return tr("Change %1 Layers").arg(QLocale().toString(edited.changed.size()));
    const QString name = NameInStep(m_names.NameOfOne(*edited.changed.begin()));
    return edited.onlyCodes ? tr("Change Code of \"%1\"").arg(name) : tr("Change \"%1\"").arg(name);
}

void LayerSteps::RequireNoPendingEdits() const
{
    if (!m_windows.HavePendingEdits())
        return;
    throw RunTimeError(
        int(HostError::EditsPending),
        tr("The layer control holds changes that are not applied yet. Apply or cancel them first."),
        QStringLiteral("UndoHistory"));
}

void LayerSteps::Tell()
{
    const std::vector<Changeset> untold = std::exchange(m_untold, {});
    if (untold.empty())
        return;
    m_names.Invalidate();
    for (const Changeset& changed : untold)
        Emit(changed);
    m_windows.RefreshEditors();
}

void LayerSteps::Emit(const Changeset& changed)
{
    const LayerChanges changes = LayerChanges::Of(changed);
    for (const qint32 layerID : changes.deleted)
        emit m_notifications.LayerDeleted(layerID);
    for (const qint32 layerID : changes.created)
        emit m_notifications.LayerCreated(layerID);
    if (!changes.changed
             .isEmpty()) // before anything that may raise: they are stored, and the map must show them
        emit m_notifications.LayersChanged(changes.changed);
    for (const qint32 layerID : changes.renamed)
        emit m_notifications.LayerRenamed(layerID, m_names.Name(layerID));
    const QHash<qint32, QString> groupNames
        = GroupNames(m_database, {changes.renamedGroups.begin(), changes.renamedGroups.end()});
    for (const qint32 groupID : changes.renamedGroups)
        emit m_notifications.GroupRenamed(groupID, groupNames.value(groupID));
    if (changes.groups)
        emit m_notifications.GroupsChanged();
    if (changes.schemes)
        emit m_notifications.SchemesChanged(LayerSchemes(m_database).Current(), !changes.schemeValues);
}

} // namespace Orvane
