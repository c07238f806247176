// SPDX-License-Identifier: MIT
#pragma once

#include "component/entry/StyleEditorLib.h"
#include "hosts/MemoryHost.h"
#include "hosts/ValueMatchers.h"
#include "support/MessageBoxRobot.h"

#include <QTabBar>
#include <QTreeView>
#include <QWidget>

#include <functional>
#include <gmock/gmock.h>
#include <memory>
#include <optional>

class QToolButton;

namespace Orvane {
class CheckBoxPlus;
class IStyleEditor;
class IStyleEditorForm;
} // namespace Orvane

namespace Orvane::Testing {

/// A layer control over a host in memory, and the actions and observations of its user.
///
///     AddTown();
///     Open();
///     ClickLayer("Roads");
///     Click("chkVisible");
///     Click("cmdApply");
///     EXPECT_EQ(Stored(1, "Visible"), false);
class EditorFixture : public testing::Test
{
protected:
    EditorFixture();
    ~EditorFixture() override;
    /// Ends all editors, while the clients of a derived fixture still exist.
    void TearDown() override;

    /// Roads (1), Rivers (2) and Parcels (3); group Transport (10) holds 1 and 2, which differ in everything
    /// but Priority; group Land (20) holds 3; Boundary (4) is a system layer in no group.
    void AddTown();

    /// Stored view state of the editor that Open opens.
    void StoreViewState(const QString& text);
    QString StoredViewState();

    /// Puts this client in front of the host; call before the first editor is made. Not owned.
    void UseClient(IStyleEditorClient& client);

    /// Makes the editor "Main" if there is none, and shows it.
    void Open();
    /// Makes the editor "Main" without showing it.
    void Create();
    /// Closes it as the host does.
    void Close();

    IStyleEditorLibrary& Library();
    IStyleEditor& Editor();
    IStyleEditorForm& EditorForm();
    /// The window; nullptr when there is no editor.
    QWidget* Form();

    template <typename Widget = QWidget> Widget& Find(const char* name)
    {
        auto* found = Form()->findChild<Widget*>(QLatin1String(name));
        if (!found)
            throw std::runtime_error(name);
        return *found;
    }

    /// A left click in the middle of the control; on the box itself of a check box.
    void Click(const char* name);
    void ClickTab(int tab);
    void ClickLayer(const QString& text);
    void ClickGroup(const QString& text);
    /// Opens the list of schemes with the mouse and selects the entry with the keys.
    void PickScheme(const QString& name);
    /// Sends a key to the control that has the focus, or would have it in an active window.
    void Key(int key);
    /// Presses the button and calls act with the slider that opens; false when none opened.
    bool EditWithSlider(const char* button, const std::function<void(QWidget& slider)>& act);
    /// Presses the button, moves the slider that opens to the value and presses OK.
    void ChooseScale(const char* button, int value);

    qint16 CheckState(const char* name);
    QString TextOf(const char* name);
    bool IsUnderlined(const char* name);
    bool IsEnabled(const char* name);
    /// The bits of the quick mode buttons that are pressed.
    int PressedModes();
    /// True when Apply and Cancel are enabled; they are enabled together.
    bool CanApply();
    int CurrentTab();

    /// The texts of the calls to the host since the last call of this, without reads of display names.
    QStringList NewCalls();

    /// A stored column of a layer as a number.
    double Stored(qint32 layerID, const char* column);

    MemoryHost host;

private:
    void ClickNode(QTreeView& tree, const QString& text);

    IStyleEditorClient* m_client = &host;
    std::unique_ptr<StyleEditorLib> m_library;
};

} // namespace Orvane::Testing
