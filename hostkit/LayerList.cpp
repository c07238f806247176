// SPDX-License-Identifier: MIT
#include "hostkit/LayerList.h"

#include "hostkit/StandardClient.h"
#include "hostkit/common/HostNotifications.h"
#include "hostkit/common/MapNotes.h"
#include "hostkit/lists/StoredList.h"

namespace Orvane {

LayerList::LayerList(ILayerStore& store, StandardClient& client) : m_store(store), m_client(client)
{
    const HostNotifications& told = client.Notifications();
    const auto one = [this](qint32 layerID) { emit Changed({layerID}); };
    connect(&told, &HostNotifications::LayersChanged, this, &LayerList::Changed);
    connect(&told, &HostNotifications::LayerRenamed, this, one);
    connect(&told, &HostNotifications::LayerCreated, this, one);
    connect(&told, &HostNotifications::LayerDeleted, this, one);
    connect(&told, &HostNotifications::GroupRenamed, this, &LayerList::GroupsChanged);
    connect(&told, &HostNotifications::GroupsChanged, this, &LayerList::GroupsChanged);
}

std::vector<ListedLayer> LayerList::Layers() const
{
    return StoredList::Layers(m_store);
}

std::optional<ListedLayer> LayerList::Layer(qint32 layerID) const
{
    return StoredList::Layer(m_store, layerID);
}

std::vector<ListedGroup> LayerList::Groups() const
{
    return StoredList::Groups(m_store);
}

bool LayerList::Update(const std::vector<ListedLayer>& layers)
{
    return Finished(StoredList::Update(m_store, layers));
}

bool LayerList::Update(const std::vector<ListedLayer>& layers, const std::vector<ListedGroup>& groups)
{
    return Finished(StoredList::Update(m_store, layers, groups));
}

QMap<QString, QString> LayerList::Notes() const
{
    return MapNotes::ReadAll(m_store);
}

void LayerList::SetNotes(const QMap<QString, QString>& notes)
{
    Finished(MapNotes::ReplaceAll(m_store, notes));
}

bool LayerList::Finished(bool differs)
{
    if (differs)
        m_client.RefreshEditors();
    return differs;
}

} // namespace Orvane
