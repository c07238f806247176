// SPDX-License-Identifier: MIT
#pragma once

namespace Orvane {

/// The scale of the host's map. A host may implement it besides IStyleEditorClient: its application object
/// implements both, and the component finds it by a dynamic cast. The sliders for the visible scales then
/// offer the map's scale; without it they offer nothing more.
///
///     class MyClient : public IStyleEditorClient, public IMapScale
///     {
///         double IMapScale_CurrentScale() const override { return m_canvas.ScaleDenominator(); }
///     };
class IMapScale
{
public:
    /// The minor version of the contract that added it; never asked of a host that was built with an earlier
    /// one.
    static constexpr int ContractMinor = 5;

    virtual ~IMapScale() = default;
    IMapScale(const IMapScale&) = delete;
    IMapScale& operator=(const IMapScale&) = delete;

    /// The denominator of the scale at which the map is shown: 25000 for 1:25000. 0 if none is shown. Called
    /// each time a slider for a visible scale opens.
    double CurrentScale() const { return IMapScale_CurrentScale(); }

protected:
    IMapScale() = default;

private:
    virtual double IMapScale_CurrentScale() const = 0;
};

} // namespace Orvane
