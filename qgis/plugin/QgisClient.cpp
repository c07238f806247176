// SPDX-License-Identifier: MIT
#include "qgis/plugin/QgisClient.h"

#include "hostkit/LayerDeletion.h"
#include "hostkit/LayerFactory.h"
#include "hostkit/common/HostNotifications.h"
#include "hostkit/common/LayerNames.h"
#include "hostkit/windows/EditorDock.h"
#include "messages/NameInText.h"
#include "qgis/project/ProjectMirror.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/IStyleEditor.h>
#include <OrvaneShellLib/IStyleEditorForm.h>

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QScopedValueRollback>
#include <qgsproject.h>
#include <qgsproviderregistry.h>
#include <qgsvectorlayer.h>

#include <exception>
#include <utility>

namespace Orvane {

namespace {

QgsMapLayer* MakeScratchLayer()
{
    return new QgsVectorLayer(
        QStringLiteral("Polygon?crs=EPSG:4326"), QgisClient::tr("New scratch layer"),
        QStringLiteral("memory"));
}

// QGIS takes out passwords, but not those in an address.
QString PublicSource(const QgsMapLayer& layer)
{
    static const QRegularExpression signIn(QStringLiteral("//[^/?#]*@"));
    return layer.publicSource().replace(signIn, QStringLiteral("//"));
}

QString SourceText(const QgsMapLayer& layer)
{
    const QString provider = layer.providerType();
    if (provider == QLatin1String("memory"))
        return QgisClient::tr("Temporary scratch layer");
    QString source = PublicSource(layer);
    const QVariantMap parts = QgsProviderRegistry::instance()->decodeUri(provider, source);
    const QString path = parts.value(QStringLiteral("path")).toString();
    if (path.isEmpty())
        return source;
    QString name = parts.value(QStringLiteral("layerName")).toString();
    if (!QFileInfo(path).isAbsolute()) // of a connection, whose name may hold a password
        return name;
    const QString file = QDir::toNativeSeparators(path);
    return name.isEmpty() ? file : QStringLiteral("%1 (%2)").arg(file, name);
}

/// While it exists, the client is busy.
using Running = QScopedValueRollback<int>;

} // namespace

QgisClient::QgisClient(
    ILayerStore& store, IShellServices& services, QgsProject& project, ProjectMirror& mirror)
    : StandardClient(store, services), m_project(project), m_mirror(mirror),
      m_notes(project, store), m_commands{MakeScratchLayer, {}}
{
    SetAppliesSchemeAtOpening(true); // ProjectSession does
}

void QgisClient::SetDock(EditorDock* dock)
{
    if (m_dock && !dock)
        m_dock->EditorClosed(m_form);
    m_dock = dock;
}

bool QgisClient::HasPendingEdits() const
{
    const auto* editor = dynamic_cast<const IStyleEditorForm*>(m_form.data());
    return editor && editor->HasPendingEdits();
}

void QgisClient::DropPendingEdits()
{
    m_changed.clear();
    if (auto* editor = dynamic_cast<IStyleEditor*>(m_form.data()); editor && HasPendingEdits())
        editor->RefreshGroups();
}

void QgisClient::IStyleEditorClient_ShowEditor(QWidget* form)
{
    m_form = form;
    if (!m_dock)
        return StandardClient::IStyleEditorClient_ShowEditor(form);
    m_dock->ShowEditor(form);
}

void QgisClient::IStyleEditorClient_EditorClosed(QWidget* form)
{
    if (m_dock)
        m_dock->EditorClosed(form);
    StandardClient::IStyleEditorClient_EditorClosed(form);
    if (m_form == form)
        m_form = nullptr;
}

void QgisClient::IStyleEditorClient_LayerChanged(qint32 layerID)
{
    m_changed.insert(layerID);
    StandardClient::IStyleEditorClient_LayerChanged(layerID);
}

void QgisClient::IStyleEditorClient_RenameLayer(qint32 layerID, const QString& name)
{
    const Running running(m_running, m_running + 1);
    StandardClient::IStyleEditorClient_RenameLayer(layerID, name);
    m_mirror.WriteName(layerID, name);
}

void QgisClient::IStyleEditorClient_RenameGroup(qint32 groupID, const QString& name)
{
    const Running running(m_running, m_running + 1);
    StandardClient::IStyleEditorClient_RenameGroup(groupID, name);
    m_mirror.WriteGroupName(groupID, name);
}

// The layers are written while the signals of the scheme are sent, in the same step.
void QgisClient::IStyleEditorClient_LoadScheme(const QString& name)
{
    const Running running(m_running, m_running + 1);
    RecordStep([&] {
        StandardClient::IStyleEditorClient_LoadScheme(name);
        return QCoreApplication::translate("SchemeSteps", "Load Scheme \"%1\"").arg(NameInStep(name));
    });
}

void QgisClient::IStyleEditorClient_RedrawMap()
{
    const Running running(m_running, m_running + 1);
    const QSet<qint32> changed = std::exchange(m_changed, {});
    std::exception_ptr error;
    try {
        m_notes.WriteAfter([&] { m_mirror.Write(changed, ProjectMirror::Meant::Changes); });
    } catch (...) {
        error = std::current_exception(); // the step ends with what was taken back
    }
    const QScopedValueRollback<bool> applying(m_isApplying, true);
    StandardClient::IStyleEditorClient_RedrawMap();
    if (error)
        std::rethrow_exception(error);
}

PromptAnswer QgisClient::IStyleEditorClient_PromptText(const PromptRequest& request)
{
    const Running running(m_running, m_running + 1);
    return StandardClient::IStyleEditorClient_PromptText(request);
}

ConflictChoice QgisClient::IConflictQuestion_AskAboutConflicts(
    QWidget* form, const QString& node, const std::vector<ConflictingEdit>& edits)
{
    const Running running(m_running, m_running + 1);
    return StandardClient::IConflictQuestion_AskAboutConflicts(form, node, edits);
}

std::vector<RendererStyle> QgisClient::IStyleEditorClient_RendererStyles() const
{
    return m_mirror.Styles().Offered();
}

qint32 QgisClient::IStyleEditorClient_CreateLayer()
{
    const Running running(m_running, m_running + 1);
    QgsMapLayer* layer = m_commands.makeLayer();
    if (!layer)
        return 0;
    if (!m_project.mapLayer(layer->id()))
        m_project.addMapLayer(layer);
    m_mirror.ReadLayers({layer->id()});
    m_mirror.ReadTree();
    InvalidateLayerNames();
    const qint32 layerID = m_mirror.IDOf(*layer);
    emit Notifications().LayerCreated(layerID);
    return layerID;
}

void QgisClient::ISchemeManager_ManageSchemes(QWidget* form)
{
    const Running managing(m_managing, m_managing + 1);
    StandardClient::ISchemeManager_ManageSchemes(form);
}

void QgisClient::IStyleEditorClient_DeleteLayer(qint32 layerID)
{
    Remove({layerID});
}

void QgisClient::IManyLayers_DeleteLayers(const std::vector<qint32>& layerIDs)
{
    Remove(layerIDs);
}

void QgisClient::Remove(const std::vector<qint32>& layerIDs)
{
    const Running running(m_running, m_running + 1);
    QList<QgsMapLayer*> layers;
    for (const qint32 layerID : layerIDs) {
        if (QgsMapLayer* layer = m_mirror.Layer(layerID))
            layers << layer;
    }
    if (!layers.isEmpty())
        m_commands.removeLayers ? m_commands.removeLayers(layers) : RemoveAfterQuestion(layers);
    ReadRemoved(layerIDs);
}

void QgisClient::ReadRemoved(const std::vector<qint32>& layerIDs)
{
    std::vector<qint32> removed;
    removed.reserve(layerIDs.size());
    QSet<QString> texts;
    for (const qint32 layerID : layerIDs) {
        if (m_mirror.Layer(layerID))
            continue;
        removed.push_back(layerID);
        texts.insert(m_mirror.TextOf(layerID));
    }
    if (removed.empty())
        return;
    m_mirror.ReadLayers(texts);
    InvalidateLayerNames();
    for (const qint32 layerID : removed)
        m_changed.remove(layerID);
    for (const qint32 layerID : removed)
        emit Notifications().LayerDeleted(layerID);
}

double QgisClient::IMapScale_CurrentScale() const
{
    return m_commands.mapScale ? m_commands.mapScale() : 0;
}

QString QgisClient::ILayerSource_Source(qint32 layerID)
{
    const QgsMapLayer* layer = m_mirror.Layer(layerID);
    return layer ? SourceText(*layer) : QString();
}

void QgisClient::RemoveAfterQuestion(const QList<QgsMapLayer*>& layers)
{
    LayerNames names(LayerDatabase());
    LayerFactory rows(LayerDatabase(), names);
    QList<QgsMapLayer*> removed;
    std::vector<qint32> layerIDs;
    layerIDs.reserve(size_t(layers.size()));
    for (QgsMapLayer* layer : layers) {
        const qint32 layerID = m_mirror.IDOf(*layer);
        if (!rows.CanDelete(layerID))
            continue;
        removed << layer;
        layerIDs.push_back(layerID);
    }
    if (!removed.isEmpty() && ConfirmDeletion(rows.WhatGoes(layerIDs)))
        m_project.removeMapLayers(removed);
}

} // namespace Orvane
