// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

#include <vector>

class QIcon;
class QWidget;

namespace Orvane {

/// A command of the host in the menu of layers and groups.
struct NodeCommand {
    QString id; ///< tells the commands apart; never shown
    QString text; ///< in the user's language
    /// Not owned; read only while the menu is made, right after Commands. It may be replaced when Commands is
    /// called again. nullptr: no icon.
    const QIcon* icon = nullptr;
};

/// Commands of the host for the layers that the user has chosen in an editor's list, in the list's menu. A
/// host may implement it besides IStyleEditorClient: its application object implements both, and the
/// component finds it by a dynamic cast. hostkit/StandardClient.h has one without commands.
///
///     class MyClient : public IStyleEditorClient, public INodeCommands
///     {
///         std::vector<NodeCommand> INodeCommands_Commands(QWidget*) override
///         {
///             return {{"zoom", tr("Zoom to Layer")}};
///         }
///         QString INodeCommands_WhyNot(const QString&, const std::vector<qint32>& layerIDs) override
///         {
///             return m_map.HasExtent(layerIDs) ? QString() : tr("These layers have no features.");
///         }
///         void INodeCommands_Run(QWidget*, const QString&, const std::vector<qint32>& layerIDs) override
///         {
///             m_map.ZoomTo(layerIDs);
///         }
///     };
class INodeCommands
{
public:
    /// The minor version of the contract that added it; never asked of a host that was built with an earlier
    /// one.
    static constexpr int ContractMinor = 5;

    virtual ~INodeCommands() = default;
    INodeCommands(const INodeCommands&) = delete;
    INodeCommands& operator=(const INodeCommands&) = delete;

    /// The commands in the order in which the menu shows them; asked each time before it opens. form: the
    /// editor's form; not owned. May raise; the user is then shown the error instead of the menu.
    std::vector<NodeCommand> Commands(QWidget* form) { return INodeCommands_Commands(form); }

    /// Why the command is not possible for these layers, in the user's language; empty if it is possible.
    /// Asked for each command before the menu opens, so it should be quick. id: of a command. layerIDs: the
    /// chosen layers and those of chosen groups, each once; at least one.
    QString WhyNot(const QString& id, const std::vector<qint32>& layerIDs)
    {
        return INodeCommands_WhyNot(id, layerIDs);
    }

    /// Runs the command, after the event in which the user chose it; the host may ask the user, and end the
    /// editor. Edits that are not applied stay. What it raises is shown to the user. form: as above.
    /// layerIDs: as above; some may have gone meanwhile.
    void Run(QWidget* form, const QString& id, const std::vector<qint32>& layerIDs)
    {
        INodeCommands_Run(form, id, layerIDs);
    }

protected:
    INodeCommands() = default;

private:
    virtual std::vector<NodeCommand> INodeCommands_Commands(QWidget* form) = 0;
    virtual QString INodeCommands_WhyNot(const QString& id, const std::vector<qint32>& layerIDs) = 0;
    virtual void INodeCommands_Run(QWidget* form, const QString& id, const std::vector<qint32>& layerIDs) = 0;
};

} // namespace Orvane
