// SPDX-License-Identifier: MIT
#include "component/dialog/EditorFixture.h"

#include "component/dialog/window/frmLayerStyles.h"
#include "ovctrls/CheckBoxPlus.h"
#include "support/Without.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QSlider>
#include <QTimer>
#include <QToolButton>
#include <QtTest>

namespace Orvane::Testing {

namespace {

const QString MainID = QStringLiteral("Main");
const QString SettingKey = QStringLiteral("DrawStyleEditor::Main");

// The part of a control that is clicked.
QWidget& Target(QWidget& control)
{
    auto* box = control.findChild<QCheckBox*>();
    return qobject_cast<CheckBoxPlus*>(&control) && box ? *box : control;
}

QModelIndex NodeOf(const QAbstractItemModel& model, const QString& text, const QModelIndex& parent = {})
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        if (index.data().toString() == text)
            return index;
        const QModelIndex below = NodeOf(model, text, index);
        if (below.isValid())
            return below;
    }
    return {};
}

// Acts in each drop-down slider that opens during its lifetime.
class SliderRobot : public QObject
{
public:
    explicit SliderRobot(const std::function<void(QWidget&)>& act) : m_act(act)
    {
        qApp->installEventFilter(this);
    }

    bool HasOpened() const { return m_opened; }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show && watched->objectName() == QLatin1String("frmDropSlider")) {
            m_opened = true;
            auto* slider = static_cast<QWidget*>(watched);
            QTimer::singleShot(0, slider, [this, slider] { m_act(*slider); });
        }
        return false;
    }

private:
    std::function<void(QWidget&)> m_act;
    bool m_opened = false;
};

} // namespace

EditorFixture::EditorFixture()
{
    host.OnShowEditor = [](QWidget* form) { form->show(); };
}

EditorFixture::~EditorFixture() = default;

void EditorFixture::TearDown()
{
    m_library.reset();
}

void EditorFixture::AddTown()
{
    host.AddLayer({.id = 1, .name = "Roads", .code = qint32(11), .color = qint32(0x0000FF)});
    host.AddLayer(
        {.id = 2,
         .name = "Rivers",
         .code = qint32(12),
         .visible = false,
         .selectable = false,
         .locked = true,
         .hitable = false,
         .snapRequired = true,
         .enquirable = false,
         .color = qint32(0xFFFF0000),
         .minVisScale = 5000.0,
         .maxVisScale = 20000.0,
         .style = qint32(7),
         .overrideMode = qint32(1)});
    host.AddLayer({.id = 3, .name = "Parcels", .code = qint32(13), .style = qint32(7)});
    host.AddLayer({.id = 4, .name = "Boundary", .code = qint32(14), .systemLayer = true});
    host.AddGroup(
        {.id = 10, .name = QString("Transport"), .ordering = 1, .expanded = true, .members = {1, 2}});
    host.AddGroup({.id = 20, .name = QString("Land"), .ordering = 2, .members = {3}});
    host.rendererStyles = {{7, "Hatched"}, {9, "Sketched"}};
    host.ClearLog();
}

void EditorFixture::StoreViewState(const QString& text)
{
    host.settings[SettingKey] = text;
}

QString EditorFixture::StoredViewState()
{
    return host.settings[SettingKey];
}

void EditorFixture::UseClient(IStyleEditorClient& client)
{
    m_client = &client;
}

IStyleEditorLibrary& EditorFixture::Library()
{
    if (!m_library) {
        m_library = std::make_unique<StyleEditorLib>(
            [] { return std::make_unique<frmLayerStyles>(); }, QStringLiteral("no such folder"));
        static_cast<IStyleEditorLibrary&>(*m_library).Initialise(m_client);
    }
    return *m_library;
}

void EditorFixture::Create()
{
    if (!Library().GetStyleEditor(MainID))
        Library().NewStyleEditor(MainID);
}

void EditorFixture::Open()
{
    Create();
    Editor().Visible(true);
}

void EditorFixture::Close()
{
    Editor().Visible(false);
}

IStyleEditor& EditorFixture::Editor()
{
    return *Library().GetStyleEditor(MainID);
}

IStyleEditorForm& EditorFixture::EditorForm()
{
    return dynamic_cast<IStyleEditorForm&>(Editor());
}

QWidget* EditorFixture::Form()
{
    return dynamic_cast<QWidget*>(Library().GetStyleEditor(MainID));
}

void EditorFixture::Click(const char* name)
{
    QTest::mouseClick(&Target(Find(name)), Qt::LeftButton);
}

void EditorFixture::ClickTab(int tab)
{
    auto& tabs = Find<QTabBar>("tsLists");
    QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(tab - 1).center());
    QCoreApplication::sendPostedEvents(); // a question about edits is asked after the event
}

void EditorFixture::ClickNode(QTreeView& tree, const QString& text)
{
    const QModelIndex index = NodeOf(*tree.model(), text);
    ASSERT_TRUE(index.isValid()) << qPrintable(text);
    tree.scrollTo(index);
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualRect(index).center());
}

void EditorFixture::PickScheme(const QString& name)
{
    auto& list = Find<QComboBox>("cmbScheme");
    QTest::mouseClick(&list, Qt::LeftButton, {}, list.rect().center());
    QAbstractItemView& entries = *list.view();
    ASSERT_TRUE(entries.isVisible());
    QTest::keyClick(&entries, Qt::Key_Home);
    for (int row = list.findText(name); row > 0; --row)
        QTest::keyClick(&entries, Qt::Key_Down);
    QTest::keyClick(&entries, Qt::Key_Return);
    QCoreApplication::processEvents();
}

void EditorFixture::ClickLayer(const QString& text)
{
    ClickNode(CurrentTab() == 1 ? Find<QTreeView>("tvLayers1") : Find<QTreeView>("tvLayers2"), text);
}

void EditorFixture::ClickGroup(const QString& text)
{
    ClickNode(Find<QTreeView>("tvLayers1"), text);
}

void EditorFixture::Key(int key)
{
    QWidget* focused = Form()->focusWidget();
    QTest::keyClick(focused ? focused : Form(), Qt::Key(key));
}

bool EditorFixture::EditWithSlider(const char* button, const std::function<void(QWidget&)>& act)
{
    const SliderRobot user(act);
    Click(button);
    return user.HasOpened();
}

void EditorFixture::ChooseScale(const char* button, int value)
{
    EXPECT_TRUE(EditWithSlider(button, [value](QWidget& slider) {
        slider.findChild<QSlider*>("sldValue")->setValue(value);
        QTest::mouseClick(slider.findChild<QWidget*>("cmdOK"), Qt::LeftButton);
    })) << "no slider opened";
}

qint16 EditorFixture::CheckState(const char* name)
{
    return Find<CheckBoxPlus>(name).Value();
}

QString EditorFixture::TextOf(const char* name)
{
    return Find<QLabel>(name).text();
}

bool EditorFixture::IsUnderlined(const char* name)
{
    return Find(name).font().underline();
}

bool EditorFixture::IsEnabled(const char* name)
{
    return Target(Find(name)).isEnabled();
}

int EditorFixture::PressedModes()
{
    return (Find<QToolButton>("Normal").isChecked() ? 1 : 0)
        | (Find<QToolButton>("Backdrop").isChecked() ? 2 : 0)
        | (Find<QToolButton>("Hidden").isChecked() ? 4 : 0);
}

bool EditorFixture::CanApply()
{
    EXPECT_EQ(IsEnabled("cmdApply"), IsEnabled("cmdCancel"));
    return IsEnabled("cmdApply");
}

int EditorFixture::CurrentTab()
{
    return Find<QTabBar>("tsLists").currentIndex() + 1;
}

QStringList EditorFixture::NewCalls()
{
    const QStringList calls
        = Without(host.Calls(), [](const QString& call) { return call.startsWith("LayerDisplayName"); });
    host.ClearLog();
    return calls;
}

double EditorFixture::Stored(qint32 layerID, const char* column)
{
    return ToDouble(host.LayerColumn(layerID, column));
}

} // namespace Orvane::Testing
