// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

/// Tells the component whether the user may change anything. A host may implement it besides
/// IStyleEditorClient: its application object implements both, and the component finds it by a dynamic cast.
/// Without it everything may be tried, and the host's database refuses what it does not allow.
/// hostkit/StandardClient.h has a ready-made one.
///
///     class MyClient : public IStyleEditorClient, public IEditPermission
///     {
///         QString IEditPermission_WhyNotEdited() const override
///         {
///             return m_map.IsReadOnly() ? tr("This map cannot be changed.") : QString();
///         }
///     };
class IEditPermission
{
public:
    /// The minor version of the contract that added it; never asked of a host that was built with an earlier
    /// one.
    static constexpr int ContractMinor = 5;

    virtual ~IEditPermission() = default;
    IEditPermission(const IEditPermission&) = delete;
    IEditPermission& operator=(const IEditPermission&) = delete;

    /// Why the settings of layers cannot be changed, as a sentence in the user's language, which is shown
    /// above them as plain text; empty if they can be. The settings are then shown, but disabled. Asked each
    /// time when other layers are shown: it should be quick, and must not raise.
    QString WhyNotEdited() const { return IEditPermission_WhyNotEdited(); }

protected:
    IEditPermission() = default;

private:
    virtual QString IEditPermission_WhyNotEdited() const = 0;
};

} // namespace Orvane
