// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

/// Where the data of the host's layers are. A host may implement it besides IStyleEditorClient: its
/// application object implements both, and the component finds it by a dynamic cast. The tool tip of a layer
/// then tells it; without it there is no such line.
///
///     class MyClient : public IStyleEditorClient, public ILayerSource
///     {
///         QString ILayerSource_Source(qint32 layerID) override { return m_map.FileOf(layerID); }
///     };
class ILayerSource
{
public:
    /// The minor version of the contract that added it; never asked of a host that was built with an earlier
    /// one.
    static constexpr int ContractMinor = 5;

    virtual ~ILayerSource() = default;
    ILayerSource(const ILayerSource&) = delete;
    ILayerSource& operator=(const ILayerSource&) = delete;

    /// Where the layer's data are, as the user knows it: a file, or a table of a database; never a password.
    /// Plain text in one line, which is shortened in its middle when it is long. Empty if the layer has none
    /// or is gone. Called each time the pointer rests on a layer, inside a transaction of the database. May
    /// raise what the host's database raises; the tool tip is short then.
    QString Source(qint32 layerID) { return ILayerSource_Source(layerID); }

protected:
    ILayerSource() = default;

private:
    virtual QString ILayerSource_Source(qint32 layerID) = 0;
};

} // namespace Orvane
