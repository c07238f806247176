// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <vector>

namespace Orvane {

/// Does to several layers at once what IStyleEditorClient does to one. A host may implement it besides
/// IStyleEditorClient: its application object implements both, and the component finds it by a dynamic cast.
/// Of a host without it, the component asks for one layer after the other. hostkit/StandardClient.h has a
/// ready-made one.
///
///     class MyClient : public IStyleEditorClient, public IManyLayers
///     {
///         void IManyLayers_DeleteLayers(const std::vector<qint32>& layerIDs) override
///         {
///             if (m_window.AskToDelete(layerIDs.size()))
///                 m_map.Remove(layerIDs); // all or none
///         }
///     };
class IManyLayers
{
public:
    /// The minor version of the contract that added it; never asked of a host that was built with an earlier
    /// one.
    static constexpr int ContractMinor = 5;

    virtual ~IManyLayers() = default;
    IManyLayers(const IManyLayers&) = delete;
    IManyLayers& operator=(const IManyLayers&) = delete;

    /// Deletes the layers and what refers to them, after one question to the user, or does nothing; some may
    /// have gone meanwhile. Called instead of IStyleEditorClient::DeleteLayer when the user deletes two
    /// layers or more. layerIDs: each once, no system layers.
    void DeleteLayers(const std::vector<qint32>& layerIDs) { IManyLayers_DeleteLayers(layerIDs); }

protected:
    IManyLayers() = default;

private:
    virtual void IManyLayers_DeleteLayers(const std::vector<qint32>& layerIDs) = 0;
};

} // namespace Orvane
