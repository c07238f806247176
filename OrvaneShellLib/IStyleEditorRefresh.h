// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QtGlobal>

namespace Orvane {

/// Makes an editor read a few layers again instead of everything. An editor implements it since contract 1.5;
/// a host gets it with dynamic_cast from the form or from IStyleEditor:
///
///     if (auto* refresh = dynamic_cast<IStyleEditorRefresh*>(form))
///         refresh->RefreshLayers({layerID});
///     else if (auto* editor = dynamic_cast<IStyleEditorForm*>(form))
///         editor->Refresh();
///
/// All calls are made on the user-interface thread.
class IStyleEditorRefresh
{
public:
    virtual ~IStyleEditorRefresh() = default;
    IStyleEditorRefresh(const IStyleEditorRefresh&) = delete;
    IStyleEditorRefresh& operator=(const IStyleEditorRefresh&) = delete;

    /// Reads the rows and the display names of these layers again, and the panel if the current node has one
    /// of them. Call it after the host itself has changed nothing but columns of these layers. Keeps what
    /// IStyleEditorForm::Refresh keeps, and raises what it raises. Does as much as Refresh where less would
    /// not do, for example if one of the layers is listed now and was not before, or if they are many.
    void RefreshLayers(const QSet<qint32>& layerIDs) { IStyleEditorRefresh_RefreshLayers(layerIDs); }

protected:
    IStyleEditorRefresh() = default;

private:
    virtual void IStyleEditorRefresh_RefreshLayers(const QSet<qint32>& layerIDs) = 0;
};

} // namespace Orvane
