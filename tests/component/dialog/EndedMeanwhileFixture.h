// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/EditorFixture.h"

#include <OrvaneShellLib/ForwardingClient.h>
#include <OrvaneShellLib/IStyleEditor.h>
#include <OrvaneShellLib/IStyleEditorForm.h>
#include <OrvaneShellLib/IStyleFilter.h>

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QTimer>

namespace Orvane::Testing {

/// Calls a function while it prompts, creates, deletes or loads, or fails where it writes.
class BusyClient : public ForwardingClient
{
public:
    using ForwardingClient::ForwardingClient;
    std::function<void()> meanwhile = [] {};
    bool isFaulty = false;

private:
    PromptAnswer IStyleEditorClient_PromptText(const PromptRequest&) override
    {
        meanwhile();
        return {true, QStringLiteral("77")};
    }
    qint32 IStyleEditorClient_CreateLayer() override
    {
        meanwhile();
        return ForwardingClient::IStyleEditorClient_CreateLayer();
    }
    void IStyleEditorClient_DeleteLayer(qint32) override { meanwhile(); }
    void IStyleEditorClient_LoadScheme(const QString&) override { meanwhile(); }
    void IStyleEditorClient_CreateScheme(const QString&) override { meanwhile(); }
    void IStyleEditorClient_BeginLayerEdit(IRecordset& layers) override
    {
        if (isFaulty)
            throw RunTimeError(10001, QStringLiteral("The host is out of order."));
        ForwardingClient::IStyleEditorClient_BeginLayerEdit(layers);
    }
};

/// Shows no layer, and opens on the groups.
class NoLayers : public IStyleFilter
{
    bool IStyleFilter_ShowsGroups() const override { return true; }
    bool IStyleFilter_IsLayerShown(qint32, bool) const override { return false; }
};

/// Calls a function when a window of that class opens.
template <typename Window> class WhenOpened : public QObject
{
public:
    explicit WhenOpened(const std::function<void()>& act) : m_act(act) { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show && dynamic_cast<Window*>(watched))
            QTimer::singleShot(0, this, m_act);
        return false;
    }

private:
    std::function<void()> m_act;
};

/// How the dialog ends.
enum class Ending { HostDeletesTheForm, UnloadWithoutApply, LibraryIsReleased };

/// A dialog that ends while something waits for the user or the host.
class EndedMeanwhile : public EditorFixture
{
public:
    using EditorFixture::Click;
    using EditorFixture::ClickGroup;
    using EditorFixture::ClickLayer;
    using EditorFixture::ClickTab;
    using EditorFixture::Editor;
    using EditorFixture::EditorForm;
    using EditorFixture::Find;
    using EditorFixture::Form;
    using EditorFixture::host;
    using EditorFixture::Open;

    void SetUp() override
    {
        AddTown();
        host.schemeNames = QStringList{"Day", "Night"};
        host.currentScheme = "Day";
        UseClient(client);
    }

    void OpenWithEdits()
    {
        Open();
        ClickLayer("Roads");
        Click("chkVisible");
        form = Form();
    }

    void OpenOnSchemes()
    {
        Open();
        ClickTab(3);
        form = Form();
    }

    void End()
    {
        if (ending == Ending::HostDeletesTheForm)
            delete Form();
        else if (ending == Ending::UnloadWithoutApply)
            EditorForm().UnloadWithoutApply();
        else
            TearDown();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    /// Ends the dialog at the first message box.
    template <typename Action> void AtTheBox(Action&& act)
    {
        MessageBoxRobot nobody{};
        nobody.BeforeAnswer([this](QMessageBox&) { End(); });
        act();
        QCoreApplication::processEvents();
        EXPECT_EQ(nobody.Boxes().size(), 1u);
    }

    BusyClient client{host};
    QPointer<QWidget> form;
    Ending ending = Ending::HostDeletesTheForm;
};

} // namespace Orvane::Testing
