// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/nodes/NodeKey.h"
#include "component/model/LayerStyle.h"

#include <QObject>
#include <QString>

#include <optional>
#include <vector>

class QAbstractButton;
class QWidget;

namespace Orvane {

class CodeLabel;

/// The commands of the panel picLayerControls: creating and deleting a layer, and editing its code. The host
/// does the work; an edited code stays in the label until it is applied.
class LayerCommands : public QObject
{
    Q_OBJECT

public:
    struct Widgets {
        QAbstractButton* cmdNewLayer;
        QAbstractButton* cmdDeleteLayer;
        CodeLabel* lblCode;
    };

    /// widgets: not owned; outlive this object.
    explicit LayerCommands(const Widgets& widgets, QObject* parent = nullptr);

    /// Shows the code of the node with that record and enables the commands that are possible. isSystemLayer:
    /// its code cannot be edited.
    void Show(const std::optional<NodeReference>& node, const LayerStyle& record, bool isSystemLayer);

    /// Shows the code that several layers have in common; it cannot be edited. layerIDs: those to delete on
    /// DeleteLayer; empty if that is not possible.
    void ShowMany(std::vector<qint32> layerIDs, const LayerStyle& record);

    /// As Show, but a code that the user has entered meanwhile stays in the label.
    void Follow(const std::optional<NodeReference>& node, const LayerStyle& record, bool isSystemLayer);

    /// The code as the label shows it; empty when there is none.
    QString CodeText() const;
    /// True if the user has entered another code since the node was shown.
    bool IsCodeEdited() const { return m_isCodeEdited; }
    /// Shows the code as it was read instead of the one that the user has entered.
    void DropCodeEdit();
    /// The code to store; nothing if the user did not touch it and it would not come back as it was stored.
    std::optional<QString> CodeToStore() const;

    /// Creates a layer through the host.
    void NewLayer();
    /// Deletes the layers shown through the host, without system layers, of which the user is told; nothing
    /// for a group.
    void DeleteLayer();
    /// Asks for another code and puts it into the label, unless another layer has it.
    void EditCode();

signals:
    /// The label shows another code now.
    void CodeEdited(QWidget* label);
    /// The label shows the code that was read again.
    void CodeEditDropped(QWidget* label);
    /// The host created a layer.
    void LayerCreated(qint32 layerID);
    /// The host was asked to delete layers, and may have done so, some or all of them. Also emitted if it
    /// raised an error.
    void DeleteAsked();

private:
    void DeleteMany();
    void Delete(const std::vector<qint32>& layerIDs);
    void SetCode(const QString& answer);
    QWidget* Owner() const;

    Widgets m_widgets;
    std::optional<NodeReference> m_node; // nothing for several layers
    std::vector<qint32> m_layerIDs; // several layers
    Value m_storedCode = Value::Null();
    bool m_isCodeEdited = false;
};

} // namespace Orvane
