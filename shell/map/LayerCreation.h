// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QtGlobal>

class QWidget;

namespace Orvane {

class MapDocument;
class NewLayerDialog;
class StandardClient;

/// Makes new layers for a map as the user chooses: without features in a GeoPackage, or from a data source.
class LayerCreation
{
    Q_DECLARE_TR_FUNCTIONS(LayerCreation)

public:
    /// What Ask returns when there is no new layer.
    static constexpr qint32 NoLayer = 0;

    /// document: that of the client, whose history records a new layer as one step. None is owned; both
    /// outlive this object.
    LayerCreation(MapDocument& document, StandardClient& client) : m_document(document), m_client(client) { }

    /// Asks over the owner, makes the layer and its row, and returns its ID; NoLayer when the user cancels.
    /// If the layer cannot be made, shows the error and asks again with the same answers. Raises errors of
    /// the database; a data file that was made for the layer is then removed.
    qint32 Ask(QWidget* owner);

private:
    qint32 Make(const NewLayerDialog& wishes);
    qint32 MakeEmpty(const NewLayerDialog& wishes);
    qint32 MakeFromSource(const NewLayerDialog& wishes);

    MapDocument& m_document;
    StandardClient& m_client;
};

} // namespace Orvane
