// SPDX-License-Identifier: MIT
// The calls that the host makes to the dialog.
#include "component/common/Component.h"
#include "component/common/ErrorTexts.h"
#include "component/common/FirstError.h"
#include "component/dialog/window/EditorParts.h"
#include "component/dialog/window/SelectionEditor.h"
#include "component/dialog/window/frmLayerStyles.h"
#include "component/model/LayerCode.h"

#include <OrvaneShellLib/IStyleEditorClient.h>
#include <OrvaneShellLib/IStyleFilter.h>

#include <QPointer>

namespace Orvane {

void frmLayerStyles::IStyleEditor_StyleFilter(const IStyleFilter* filter)
{
    m_filter = filter;
    m_parts->trees.SetFilter(filter);
}

bool frmLayerStyles::IStyleEditor_Visible() const
{
    return isVisible();
}

void frmLayerStyles::IStyleEditor_Visible(bool visible)
{
    WithTranslatedErrors([&] {
        if (m_unloaded || m_closing || visible == (visible ? isVisible() : IsOpen()))
            return;
        if (!visible) {
            Hide();
            return;
        }
        if (!IsOpen()) {
            EnsureInitialised();
            RestoreViewState();
            UpdateCaption();
        }
        ShowByHost();
    });
}

void frmLayerStyles::IStyleEditor_RefreshGroups()
{
    WithTranslatedErrors([&] {
        EnsureInitialised();
        m_selection->SetModified(false);
        FirstError errors;
        const std::optional<NodeReference> before = m_parts->trees.CurrentNode();
        errors.Try([this] { m_parts->trees.LoadGroups(); });
        const std::optional<NodeReference> after = m_parts->trees.CurrentNode();
        const bool stayed = before && after && IsSameNode(*before, *after);
        if (stayed && m_tab != ListTab::Schemes) // a node that took its place has been read already
            errors.Try([this] { m_selection->Load(); });
        errors.Try([this] { m_parts->showing.ReadShown(); });
        errors.Rethrow();
    });
}

void frmLayerStyles::IStyleEditorForm_AddNewLayer(qint32 layerID)
{
    WithTranslatedErrors([&] {
        EnsureInitialised();
        const QPointer self(this); // as in ReadAgain
        m_parts->trees.ShowLayer(layerID);
        if (self && !m_unloaded)
            m_parts->showing.ReadShown();
    });
}

void frmLayerStyles::IStyleEditorForm_Popup()
{
    WithTranslatedErrors([&] {
        if (m_unloaded)
            return;
        if (!isVisible()) {
            EnsureInitialised();
            SelectTab(m_tab);
            ShowByHost();
        }
        UpdateCaption();
        if (m_filter && m_filter->ShowsGroups() && m_tab != ListTab::Groups)
            SelectTab(ListTab::Groups);
    });
}

void frmLayerStyles::IStyleEditorForm_SetLayerCode(qint32 layerID)
{
    WithTranslatedErrors([&] { Orvane::SetLayerCode(Client(), layerID, m_parts->commands.CodeText()); });
}

void frmLayerStyles::IStyleEditorForm_SetLayerName(qint32 layerID, const QString& name)
{
    m_parts->trees.SetLayerName(layerID, name);
}

const std::vector<RendererStyle>& frmLayerStyles::IStyleEditorForm_LoadRendererStyles()
{
    if (!m_rendererStyles)
        m_rendererStyles = Client().RendererStyles();
    return *m_rendererStyles;
}

const IStyleFilter* frmLayerStyles::IStyleEditorForm_Filter() const
{
    return m_filter;
}

void frmLayerStyles::IStyleEditorForm_Filter(const IStyleFilter* filter)
{
    WithTranslatedErrors([&] {
        IStyleEditor_StyleFilter(filter);
        if (m_initialised)
            m_parts->trees.LoadLayers();
    });
}

void frmLayerStyles::IStyleEditorForm_UnloadWithoutApply()
{
    m_selection->SetModified(false);
    Unload();
}

void frmLayerStyles::IStyleEditorForm_RefreshLayerNames(const QSet<qint32>& layerIDs)
{
    if (m_initialised && !m_unloaded)
        m_parts->trees.RefreshLayerTexts(layerIDs);
}

bool frmLayerStyles::IStyleEditorForm_HasPendingEdits() const
{
    return m_selection->IsModified();
}

void frmLayerStyles::IStyleEditorForm_Refresh()
{
    WithTranslatedErrors([&] {
        if (!m_initialised || m_unloaded)
            return;
        m_parts->trees.MarkStale(LayerTrees::List::Groups);
        m_parts->trees.MarkStale(LayerTrees::List::Layers);
        FirstError errors;
        errors.Try([this] { m_parts->schemes.Fill(); });
        errors.Try([this] { UpdateCaption(); });
        ReadAgain(errors);
        errors.Rethrow();
    });
}

void frmLayerStyles::IStyleEditorRefresh_RefreshLayers(const QSet<qint32>& layerIDs)
{
    WithTranslatedErrors([&] {
        if (!m_initialised || m_unloaded)
            return;
        if (!m_parts->trees.RefreshLayers(layerIDs)) {
            IStyleEditorForm_Refresh();
            return;
        }
        FirstError errors;
        if (m_tab != ListTab::Schemes)
            errors.Try([&] { m_selection->FollowLayers(layerIDs); });
        errors.Try([&] { m_parts->showing.FollowShown(layerIDs); });
        errors.Rethrow();
    });
}

} // namespace Orvane
