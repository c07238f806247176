// SPDX-License-Identifier: MIT
#include "component/dialog/trees/NodeData.h"

#include "component/common/Messages.h"
#include "component/dialog/trees/LayerTreeModel.h"
#include "messages/NameInText.h"

#include <OrvaneShellLib/LayerValues.h>

namespace Orvane {

namespace {

constexpr qsizetype LongestToolTip = 120; // characters

} // namespace

QVariant NodeData(const NodeReference& node, int role)
{
    switch (role) {
    case LayerTreeModel::NodeKeyRole:
        return MakeNodeKey(node);
    case LayerTreeModel::ImageKeyRole:
        return MakeImageKey(node);
    case LayerTreeModel::ReferenceRole:
        return QVariant::fromValue(node);
    case LayerTreeModel::IsGroupRole:
        return node.isGroup;
    case LayerTreeModel::GroupIDRole:
        return node.groupID;
    case LayerTreeModel::LayerIDRole:
        return node.layerID;
    case LayerTreeModel::QuickModeRole:
        return int(node.image);
    default:
        return {};
    }
}

QString QuickModeText(qint16 quickMode)
{
    switch (quickMode) {
    case QuickMode::Normal:
        return TranslateMsg("Normal");
    case QuickMode::Backdrop:
        return TranslateMsg("Backdrop");
    case QuickMode::Hidden:
        return TranslateMsg("Hidden");
    default:
        return TranslateMsg("various");
    }
}

QString NodeToolTip(const QString& text, qint16 quickMode)
{
    // A plain text must not be taken for rich text because of a "<" in a name.
    const QString name = NameInText(text, LongestToolTip).toHtmlEscaped();
    return QStringLiteral("<qt>%1<br>%2</qt>").arg(name, QuickModeText(quickMode));
}

} // namespace Orvane
