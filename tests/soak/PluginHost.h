// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/StandardClient.h"
#include "hostkit/StandardShellServices.h"
#include "hostkit/StyleEditorPlugin.h"
#include "store/ILayerStore.h"
#include "support/Dice.h"

#include <QPointer>
#include <QString>
#include <QWidget>

#include <memory>

namespace Orvane::Testing {

/// The host of the example, with the component as a plug-in, over a map file; and a user of the layer
/// control who makes random edits.
class PluginHost
{
public:
    /// The folder gets the map, which is made if it is missing, and the settings. dice: not owned.
    PluginHost(const QString& folder, Dice& dice);

    /// Opens the layer control, makes a few edits, and closes it in one of three ways.
    void OpenEditAndClose();
    /// Destroys the component's entry object and loads the component again.
    void LoadPluginAgain();
    /// Applies as many edits as the undo history keeps steps.
    void FillHistory();

    UndoHistory& History() { return m_client.History(); }

private:
    void Open();
    void Close();
    void Edit();
    void ChooseLayer();
    void ClickFlag();
    void StepThroughList();
    void Rename();
    void ShowOtherTabs();
    void UndoAndRedo();
    void Apply();
    void Press(const char* button);
    template <typename Widget = QWidget> Widget& Find(const char* name);

    Dice& m_dice;
    std::unique_ptr<ILayerStore> m_store;
    StandardShellServices m_services;
    StandardClient m_client;
    std::unique_ptr<StyleEditorPlugin> m_plugin; // destroyed first: it ends its editors through the client
    QPointer<QWidget> m_form;
};

} // namespace Orvane::Testing
