// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/hostkit/lists/ListedLayer.h>

#include <QMap>
#include <QObject>
#include <QSet>
#include <QString>

#include <optional>
#include <vector>

namespace Orvane {

class ILayerStore;
class StandardClient;

/// Joins a program's own list of layers and a layer store, so that editors edit the list:
///
///     const auto store = LayerStores::CreateInMemory();
///     StandardShellServices services;
///     StandardClient client(*store, services);
///     LayerList list(*store, client);
///     list.Update(layers, groups);
///     QObject::connect(&list, &LayerList::Changed, [&](const QSet<qint32>&) { layers = list.Layers(); });
///
/// The program calls Update when its list changes; Changed tells it when the user has changed the store. The
/// store may also be a file. All calls are made on the user-interface thread and raise errors of the store.
class LayerList : public QObject
{
    Q_OBJECT

public:
    /// Neither is owned; both outlive this object. store: the one that the client was made with.
    LayerList(ILayerStore& store, StandardClient& client);

    /// All layers by their IDs, as they are stored now; see StoredList::Layers.
    std::vector<ListedLayer> Layers() const;
    /// One layer; nothing if it does not exist.
    std::optional<ListedLayer> Layer(qint32 layerID) const;
    /// All groups in the order of the tree. Their names and Expanded may be changed by the user.
    std::vector<ListedGroup> Groups() const;

    /// Makes the store's layers the same as these, as StoredList::Update does, and has open editors read them
    /// again; edits that are not applied stay. Groups stay, without the layers that were deleted. Returns
    /// true if there was a difference. No signal is emitted, and it is no step of the history unless it is
    /// called inside StandardClient::RecordStep. Raises HostError::ListInvalid for an ID that is 0 or occurs
    /// twice, and the first error of an editor when everything is stored and all have been refreshed.
    bool Update(const std::vector<ListedLayer>& layers);
    /// Does the same for layers and groups. Raises HostError::UnknownLayer also if a group names a layer that
    /// is not in the list.
    bool Update(const std::vector<ListedLayer>& layers, const std::vector<ListedGroup>& groups);

    /// What editors keep with the layers, by their keys, such as which layers "Show Only These" has hidden.
    /// The notes live as long as the store: a program that saves its layers itself also saves these texts,
    /// and gives them to SetNotes when it has read its layers. Otherwise "Show All Again" does not know what
    /// was hidden before. They change only together with layers, which Changed then names.
    QMap<QString, QString> Notes() const;
    /// Stores these notes in place of all others, and has open editors read them. No signal is emitted, and
    /// it is no step of the history. Call it after Update.
    void SetNotes(const QMap<QString, QString>& notes);

Q_SIGNALS:
    /// These layers were changed, renamed, created or deleted by the user, by a scheme, by undo or by redo,
    /// and everything is stored: read them. Layer returns nothing for one that was deleted.
    void Changed(const QSet<qint32>& layerIDs);
    /// A group was renamed by the user, or undo or redo has changed groups: read them.
    void GroupsChanged();

private:
    bool Finished(bool differs);

    ILayerStore& m_store;
    StandardClient& m_client;
};

} // namespace Orvane
