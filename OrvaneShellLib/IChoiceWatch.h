// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <vector>

class QWidget;

namespace Orvane {

/// Learns which layers the user has chosen in an editor's lists, for example to enable a command for them. A
/// host may implement it besides IStyleEditorClient: its application object implements both, and the
/// component finds it by a dynamic cast.
///
///     class MyClient : public StandardClient, public IChoiceWatch
///     {
///         void IChoiceWatch_LayersChosen(QWidget*, const std::vector<qint32>& layerIDs) override
///         {
///             m_zoomToLayer.setEnabled(!layerIDs.empty());
///         }
///     };
class IChoiceWatch
{
public:
    /// The minor version of the contract that added it; never asked of a host that was built with an earlier
    /// one.
    static constexpr int ContractMinor = 5;

    virtual ~IChoiceWatch() = default;
    IChoiceWatch(const IChoiceWatch&) = delete;
    IChoiceWatch& operator=(const IChoiceWatch&) = delete;

    /// These layers are chosen now in that editor. Called after the event that chose others, and after each
    /// click on a node even if the same are chosen, since another editor may have told its own meanwhile. Not
    /// called when the editor ends: its choice ends with it, see IEditorWatch. What it raises is shown to the
    /// user. form: the editor's form; not owned. layerIDs: the chosen layers
    /// and those of chosen groups, each once; empty for none.
    void LayersChosen(QWidget* form, const std::vector<qint32>& layerIDs)
    {
        IChoiceWatch_LayersChosen(form, layerIDs);
    }

protected:
    IChoiceWatch() = default;

private:
    virtual void IChoiceWatch_LayersChosen(QWidget* form, const std::vector<qint32>& layerIDs) = 0;
};

} // namespace Orvane
