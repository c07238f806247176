// SPDX-License-Identifier: MIT
#include "component/dialog/session/SessionDeeds.h"
#include "component/dialog/session/SessionFixture.h"
#include "ovctrls/OvCombo.h"

#include <OrvaneShellLib/IStyleEditor.h>

#include <QAbstractItemView>
#include <QCheckBox>
#include <QRadioButton>
#include <QSlider>
#include <QtTest>

namespace Orvane::Testing {

namespace {

using namespace Paper;

using Shown = std::optional<double>;

const std::vector<std::pair<Property, const char*>> flags{
    {IsVisible, "chkVisible"},           {IsSelectable, "chkSelectable"}, {IsLocked, "chkLocked"},
    {IsHitable, "chkHitable"},           {IsEnquirable, "chkEnquirable"}, {IsSnapRequired, "chkSnapRequired"},
    {UsesForSymbols, "chkUseForSymbols"}};

const std::vector<std::pair<Property, const char*>> lists{
    {LineColour, "cmbColor0"},
    {FillForeColour, "cmbColor1"},
    {FillBackColour, "cmbColor2"},
    {Fill, "cmbFillStyles"},
    {LineStyle, "cmbLineStyles"}};

void ClickFlag(SessionFixture& session)
{
    if (!session.CanEdit())
        return;
    const auto& [flag, name] = session.dice.OneOf(flags);
    session.Click(name);
    session.dialog.SetFlag(flag);
}

void ClickMode(SessionFixture& session)
{
    if (!session.CanEdit())
        return;
    const int button = session.dice.Below(3);
    session.Click(std::array{"Normal", "Backdrop", "Hidden"}[size_t(button)]);
    session.dialog.SetMode(1 << button);
}

// ---- sliders

// Presses some keys in the slider, and returns the confirmed value as it is shown.
std::optional<Shown> AskSlider(SessionFixture& session, const char* button)
{
    std::optional<Shown> confirmed;
    EXPECT_TRUE(session.EditWithSlider(button, [&](QWidget& form) {
        auto* slider = form.findChild<QSlider*>("sldValue");
        auto* various = form.findChild<QCheckBox*>("chkVarious");
        for (int count = session.dice.Below(6); count > 0; --count)
            QTest::keyClick(
                slider,
                session.dice.OneOf(
                    std::array{Qt::Key_Home, Qt::Key_End, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Right}));
        if (session.dice.Chance(30))
            QTest::mouseClick(various, Qt::LeftButton, {}, QPoint(8, various->height() / 2));
        const bool confirms = session.dice.Chance(80);
        if (confirms)
            confirmed = various->isChecked() ? Shown() : Shown(slider->value());
        QTest::mouseClick(form.findChild<QWidget*>(confirms ? "cmdOK" : "cmdCancel"), Qt::LeftButton);
    }));
    return confirmed;
}

void EditMinimum(SessionFixture& session)
{
    if (!session.CanEdit())
        return;
    if (const auto chosen = AskSlider(session, "cmdEditMinScale"))
        session.dialog.SetMinScale(*chosen);
}

void EditMaximum(SessionFixture& session)
{
    if (!session.CanEdit())
        return;
    if (const auto chosen = AskSlider(session, "cmdEditMaxScale"))
        session.dialog.SetMaxScale(*chosen);
}

void EditPriority(SessionFixture& session)
{
    if (!session.CanEdit())
        return;
    if (const auto chosen = AskSlider(session, "cmdEditPriority"))
        session.dialog.SetValues({{DrawPriority, *chosen}});
}

// ---- lists

void TakeOver(SessionFixture& session, Property property, const OvCombo& list)
{
    const bool isVarious = list.currentText() == QLatin1String("[various]");
    const Shown data = isVarious ? Shown() : Shown(list.ItemData(list.ListIndex()));
    if (property != LineStyle)
        session.dialog.SetValues({{property, data}});
    else if (!data)
        session.dialog.SetValues({{LineStyle, {}}, {Thickness, {}}});
    else if (std::abs(*data) >= 20)
        session.dialog.SetValues({{LineStyle, 0}, {Thickness, *data / 20}});
    else
        session.dialog.SetValues({{LineStyle, *data}, {Thickness, 0}});
}

void PickByMouse(SessionFixture& session, OvCombo& list, int index)
{
    list.showPopup();
    const QModelIndex item = list.model()->index(index, 0);
    list.view()->scrollTo(item);
    QTest::mouseClick(list.view()->viewport(), Qt::LeftButton, {}, list.view()->visualRect(item).center());
    session.Settle();
}

void PickFromList(SessionFixture& session)
{
    if (!session.CanEdit())
        return;
    const auto& [property, name] = session.dice.OneOf(lists);
    auto& list = session.Find<OvCombo>(name);
    const int index = session.dice.Below(list.ListCount());
    if (list.itemText(index).startsWith("Custom"))
        return;
    PickByMouse(session, list, index);
    TakeOver(session, property, list);
}

void StepThroughList(SessionFixture& session)
{
    if (!session.CanEdit())
        return;
    const auto& [property, name] = session.dice.OneOf(lists);
    auto& list = session.Find<OvCombo>(name);
    const int before = list.ListIndex();
    QTest::keyClick(
        &list, session.dice.OneOf(std::array{Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_End}));
    if (list.ListIndex() != before)
        TakeOver(session, property, list);
}

void EnterLineWidth(SessionFixture& session)
{
    if (!session.CanEdit())
        return;
    auto& list = session.Find<OvCombo>("cmbLineStyles");
    const int width = session.dice.Below(130);
    const bool isInPixels = session.dice.Chance(50);
    session.host.Shell().OnShowModal = [&](QWidget* form) {
        QTest::keyClicks(form->findChild<QWidget*>("bedThickness"), QString::number(width));
        if (isInPixels)
            form->findChild<QRadioButton*>("optPixels")->click();
    };
    for (int index = 0; index < list.ListCount(); ++index) {
        if (list.itemText(index).startsWith("Custom"))
            PickByMouse(session, list, index);
    }
    session.host.Shell().OnShowModal = nullptr;
    const double limited = std::min(width, 100);
    session.dialog.SetValues({{LineStyle, 0}, {Thickness, isInPixels ? -limited : limited}});
}

void StepRendererStyle(SessionFixture& session)
{
    if (!session.CanEdit())
        return;
    auto& list = session.Find<QComboBox>("cboStyle");
    const int before = list.currentIndex();
    QTest::keyClick(&list, session.dice.OneOf(std::array{Qt::Key_Up, Qt::Key_Down, Qt::Key_End}));
    if (list.currentIndex() != before)
        session.dialog.SetValues({{RendererStyle, list.currentData().toDouble()}});
}

// ---- the code

void EnterCode(SessionFixture& session)
{
    if (session.dialog.tab != 2 || !session.dialog.panel.canEditCode)
        return;
    const bool accepts = session.dice.Chance(80);
    const QString text
        = session.dice.Chance(10) ? QStringLiteral("none") : QString::number(session.dice.Below(40) - 3);
    session.host.promptAnswers = {{accepts, text}};
    QTest::mouseDClick(&session.Find("lblCode"), Qt::LeftButton);
    if (accepts && text != QLatin1String("none"))
        session.dialog.EnterCode(text);
}

// ---- Apply and Cancel

void PressApply(SessionFixture& session)
{
    session.Click("cmdApply");
    session.dialog.Apply();
}

void PressCancel(SessionFixture& session)
{
    session.Click("cmdCancel");
    if (session.dialog.isModified)
        session.dialog.Load();
}

void PressEscape(SessionFixture& session)
{
    QTest::keyClick(session.Form(), Qt::Key_Escape);
    if (session.dialog.isModified) {
        session.dialog.Load();
        return;
    }
    EXPECT_EQ(session.Form(), nullptr);
    session.OpenEditor();
}

void PressResize(SessionFixture& session)
{
    session.Click("cmdResize");
}

} // namespace

std::vector<Deed> EditingDeeds()
{
    return {
        {"click a flag", 12, ClickFlag},
        {"click a quick mode", 6, ClickMode},
        {"edit the minimum scale", 3, EditMinimum},
        {"edit the maximum scale", 3, EditMaximum},
        {"edit the priority", 3, EditPriority},
        {"pick from a list", 5, PickFromList},
        {"step through a list", 5, StepThroughList},
        {"enter a line width", 2, EnterLineWidth},
        {"step through the renderer styles", 3, StepRendererStyle},
        {"enter a code", 3, EnterCode},
        {"press Apply", 8, PressApply},
        {"press Cancel", 3, PressCancel},
        {"press Escape", 2, PressEscape},
        {"press the resize button", 2, PressResize}};
}

} // namespace Orvane::Testing
