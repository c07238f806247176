// SPDX-License-Identifier: MIT
#include "component/dialog/trees/NodeData.h"

#include "component/common/Messages.h"
#include "component/dialog/trees/LayerTreeModel.h"
#include "messages/NameInText.h"

#include <OrvaneShellLib/LayerValues.h>

namespace Orvane {

namespace {

constexpr qsizetype LongestToolTip = 120; // characters

// What the marks in a listed name mean, each in a line of its own.
QString MarksExplained(const QString& text)
{
    QString lines;
    const auto append
        = [&lines](const QString& line) { lines += QLatin1String("<br>") + line.toHtmlEscaped(); };
    if (text.contains(QLatin1String("(OBS)")))
        append(TranslateMsg("(OBS): obscured; the layer is not drawn at the current scale."));
    if (text.contains(QLatin1String("(SUP)"))) {
        append(TranslateMsg(
            "(SUP): suppressed; the layer is not drawn, for example because its data cannot be read."));
    }
    return lines;
}

QString FaultText(const NodeReference& node)
{
    return node.isGroup ? TranslateMsg("A value of this group cannot be read.")
                        : TranslateMsg("A value of this layer cannot be read.");
}

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

QString NodeToolTip(const QString& text, const NodeReference& node, bool faulty)
{
    // A plain text must not be taken for rich text because of a "<" in a name.
    const QString name = NameInText(text, LongestToolTip).toHtmlEscaped();
    QString marks = node.isGroup ? QString() : MarksExplained(text);
    if (faulty)
        marks += QLatin1String("<br>") + FaultText(node).toHtmlEscaped();
    return QStringLiteral("<qt>%1<br>%2%3</qt>").arg(name, QuickModeText(node.image), marks);
}

} // namespace Orvane
