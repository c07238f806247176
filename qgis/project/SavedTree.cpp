// SPDX-License-Identifier: MIT
#include "qgis/project/SavedTree.h"

#include <QDomDocument>
#include <qgslayertree.h>
#include <qgslayertreeutils.h>
#include <qgsproject.h>
#include <qgsreadwritecontext.h>
#include <qgssnappingconfig.h>

#include <memory>

namespace Orvane::SavedTree {

namespace {

const QString TreeTag = QStringLiteral("layer-tree-group");
const QString SnappingTag = QStringLiteral("snapping-settings");

// As QGIS does it when it saves a project.
void WriteTree(QDomElement& root, QgsProject& project)
{
    const std::unique_ptr<QgsLayerTree> tree(project.layerTreeRoot()->clone());
    QgsLayerTreeUtils::replaceChildrenOfEmbeddedGroups(tree.get());
    QgsLayerTreeUtils::updateEmbeddedGroupsProjectPath(tree.get(), &project);
    QgsReadWriteContext context;
    context.setPathResolver(project.pathResolver());
    tree->writeXml(root, context);
}

} // namespace

void WriteAgain(QDomDocument& file, QgsProject& project)
{
    QDomElement root = file.documentElement();
    const QDomElement former = root.firstChildElement(TreeTag);
    if (former.isNull())
        return;
    WriteTree(root, project);
    root.replaceChild(root.lastChildElement(TreeTag), former);
    root.removeChild(root.firstChildElement(SnappingTag));
    project.snappingConfig().writeProject(file);
}

} // namespace Orvane::SavedTree
