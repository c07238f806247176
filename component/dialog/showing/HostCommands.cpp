// SPDX-License-Identifier: MIT
#include "component/dialog/showing/HostCommands.h"

#include "component/common/HostInterface.h"
#include "component/common/Messages.h"
#include "component/common/StyleEditorWindow.h"
#include "component/dialog/trees/NodeMenu.h"

#include <OrvaneShellLib/INodeCommands.h>

#include <QIcon>
#include <QMenu>
#include <QPointer>

namespace Orvane {

namespace {

QWidget* FormOf(QWidget& view)
{
    QWidget* form = &view;
    while (form && !qobject_cast<StyleEditorWindow*>(form))
        form = form->parentWidget();
    return form;
}

QString WhyNotFor(INodeCommands& host, const NodeCommand& command, const std::vector<qint32>& layerIDs)
{
    return layerIDs.empty() ? TranslateMsg("Select a layer or a group first.")
                            : host.WhyNot(command.id, layerIDs);
}

} // namespace

void AddHostCommands(
    QMenu& menu, const std::function<std::vector<qint32>()>& readLayerIDs, QObject* context, QWidget& view)
{
    auto* host = HostInterface<INodeCommands>();
    const QPointer<QWidget> form = FormOf(view);
    const std::vector<NodeCommand> commands = host ? host->Commands(form) : std::vector<NodeCommand>();
    if (commands.empty())
        return;
    const std::vector<qint32> layerIDs = readLayerIDs();
    menu.addSeparator();
    for (const NodeCommand& command : commands) {
        const auto run = [host, form, id = command.id, layerIDs] { host->Run(form, id, layerIDs); };
        QAction* action
            = AddNodeEntry(menu, {command.text, WhyNotFor(*host, command, layerIDs), run}, context, &view);
        if (command.icon)
            action->setIcon(*command.icon);
    }
}

} // namespace Orvane
