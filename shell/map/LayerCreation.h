// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QtGlobal>

#include <functional>

class QWidget;

namespace Orvane {

class MapDocument;
class NewLayerDialog;
class StandardClient;
struct ImportPlan;
struct OfferedLayer;

/// What the user is asked and told about data that name no coordinate system. Members may be empty.
struct ImportQuestions {
    std::function<void(ImportPlan& plan, QWidget* over)> settle; ///< asks for what was not found out
    std::function<void(const ImportPlan& plan)> tell; ///< tells what was assumed, once the map is read
};

/// Makes new layers for a map as the user chooses: without features in a GeoPackage, or from a data source.
class LayerCreation
{
    Q_DECLARE_TR_FUNCTIONS(LayerCreation)

public:
    /// What Ask returns when there is no new layer.
    static constexpr qint32 NoLayer = 0;

    /// document: that of the client, whose history records a new layer as one step. None is owned; all
    /// outlive this object.
    LayerCreation(MapDocument& document, StandardClient& client, const ImportQuestions& questions)
        : m_document(document), m_client(client), m_questions(questions)
    {
    }

    /// Asks over the owner, makes the layer and its row, and returns its ID; NoLayer when the user cancels.
    /// If the layer cannot be made, shows the error and asks again with the same answers. Raises errors of
    /// the database; a data file that was made for the layer is then removed.
    qint32 Ask(QWidget* owner);

private:
    qint32 Make(const NewLayerDialog& wishes, QWidget* owner);
    qint32 MakeEmpty(const NewLayerDialog& wishes);
    ImportPlan PlanFor(const OfferedLayer& offered, QWidget* owner) const;
    qint32 MakeFromSource(const ImportPlan& plan, const QString& name);

    MapDocument& m_document;
    StandardClient& m_client;
    const ImportQuestions& m_questions;
};

} // namespace Orvane
