// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace Orvane {

/// A window of the host for all layer schemes. A host may implement it besides IStyleEditorClient: its
/// application object implements both, and the component finds it by a dynamic cast. The dialog then shows a
/// button for it among the schemes. hostkit/StandardClient.h has a ready-made one.
///
///     class MyClient : public IStyleEditorClient, public ISchemeManager
///     {
///         void ISchemeManager_ManageSchemes(QWidget* form) override
///         {
///             MySchemeWindow(m_map.Schemes(), form).exec();
///         }
///     };
class ISchemeManager
{
public:
    /// The minor version of the contract that added it; never asked of a host that was built with an earlier
    /// one.
    static constexpr int ContractMinor = 5;

    virtual ~ISchemeManager() = default;
    ISchemeManager(const ISchemeManager&) = delete;
    ISchemeManager& operator=(const ISchemeManager&) = delete;

    /// Whether there is such a window; without it the dialog shows no button. Asked whenever the dialog lists
    /// the schemes. True unless the host says otherwise.
    bool CanManageSchemes() const { return ISchemeManager_CanManageSchemes(); }

    /// Shows the window and returns when the user has closed it. The dialog has no pending edits then;
    /// afterwards it reads the schemes and the layers again. The host may end the editor meanwhile. form: the
    /// editor's window, not owned.
    void ManageSchemes(QWidget* form) { ISchemeManager_ManageSchemes(form); }

protected:
    ISchemeManager() = default;

private:
    virtual bool ISchemeManager_CanManageSchemes() const { return true; }
    virtual void ISchemeManager_ManageSchemes(QWidget* form) = 0;
};

} // namespace Orvane
