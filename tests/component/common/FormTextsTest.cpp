// SPDX-License-Identifier: MIT
#include "component/common/FormTexts.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QToolButton>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

// A custom control like those of the component: its caption is a property that only the meta object knows.
class CaptionedControl : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString caption READ Caption WRITE SetCaption)

public:
    using QWidget::QWidget;
    QString Caption() const { return m_caption; }
    void SetCaption(const QString& caption) { m_caption = caption; }

private:
    QString m_caption;
};

class FormTexts : public testing::Test
{
protected:
    // "Visible" becomes "de:Visible".
    void Translate(const QString& language = "de")
    {
        TranslateFormTexts(m_form, [&](const QString& english) { return language + ":" + english; });
    }

    void TranslateToEnglish()
    {
        TranslateFormTexts(m_form, [](const QString& english) { return english; });
    }

    QDialog m_form;
};

} // namespace

TEST_F(FormTexts, LabelsAndButtonsOfEveryKindAreTranslated)
{
    auto* label = new QLabel("Priority:", &m_form);
    auto* button = new QPushButton("&Apply", &m_form);
    auto* check = new QCheckBox("&Visible", &m_form);
    auto* radio = new QRadioButton("pixels", &m_form);
    auto* tool = new QToolButton(&m_form);
    tool->setText("Normal");
    Translate();
    EXPECT_EQ(label->text(), QString("de:Priority:"));
    EXPECT_EQ(button->text(), QString("de:&Apply"));
    EXPECT_EQ(check->text(), QString("de:&Visible"));
    EXPECT_EQ(radio->text(), QString("de:pixels"));
    EXPECT_EQ(tool->text(), QString("de:Normal"));
}

TEST_F(FormTexts, TheWindowTitleIsTranslated)
{
    m_form.setWindowTitle("Layer Control");
    Translate();
    EXPECT_EQ(m_form.windowTitle(), QString("de:Layer Control"));
}

TEST_F(FormTexts, GroupBoxesTabsAndTheirTipsAreTranslated)
{
    auto* group = new QGroupBox("Draw Priority", &m_form);
    auto* tabs = new QTabWidget(&m_form);
    tabs->addTab(new QWidget, "Groups");
    tabs->addTab(new QWidget, "Layers");
    tabs->setTabToolTip(1, "All layers");
    Translate();
    EXPECT_EQ(group->title(), QString("de:Draw Priority"));
    EXPECT_EQ(tabs->tabText(0), QString("de:Groups"));
    EXPECT_EQ(tabs->tabText(1), QString("de:Layers"));
    EXPECT_EQ(tabs->tabToolTip(1), QString("de:All layers"));
}

TEST_F(FormTexts, HelpAndAccessibleTextsAreTranslated)
{
    auto* widget = new QWidget(&m_form);
    widget->setToolTip("tip");
    widget->setStatusTip("status");
    widget->setWhatsThis("what");
    widget->setAccessibleName("name");
    widget->setAccessibleDescription("description");
    Translate();
    EXPECT_EQ(widget->toolTip(), QString("de:tip"));
    EXPECT_EQ(widget->statusTip(), QString("de:status"));
    EXPECT_EQ(widget->whatsThis(), QString("de:what"));
    EXPECT_EQ(widget->accessibleName(), QString("de:name"));
    EXPECT_EQ(widget->accessibleDescription(), QString("de:description"));
}

TEST_F(FormTexts, WhatStandsAroundAnEntryIsTranslatedAndTheEntryIsNot)
{
    auto* entry = new QLineEdit("Roads", &m_form);
    entry->setPlaceholderText("Filter");
    auto* spin = new QSpinBox(&m_form);
    spin->setSuffix(" pixels");
    spin->setSpecialValueText("none");
    Translate();
    EXPECT_EQ(entry->text(), QString("Roads"));
    EXPECT_EQ(entry->placeholderText(), QString("de:Filter"));
    EXPECT_EQ(spin->suffix(), QString("de: pixels"));
    EXPECT_EQ(spin->specialValueText(), QString("de:none"));
}

TEST_F(FormTexts, OnlyItemsMarkedStaticAreTranslated)
{
    auto* data = new QComboBox(&m_form);
    data->addItem("Roads");
    auto* fixed = new QComboBox(&m_form);
    fixed->addItems({"Always", "Never"});
    fixed->setProperty("staticItems", true);
    Translate();
    EXPECT_EQ(data->itemText(0), QString("Roads"));
    EXPECT_EQ(fixed->itemText(0), QString("de:Always"));
    EXPECT_EQ(fixed->itemText(1), QString("de:Never"));
}

TEST_F(FormTexts, AnOwnControlWithACaptionIsTranslated)
{
    auto* control = new CaptionedControl(&m_form);
    control->SetCaption("Locked");
    Translate();
    EXPECT_EQ(control->Caption(), QString("de:Locked"));
}

TEST_F(FormTexts, ALabelInsideAnOwnControlIsTheControlsBusiness)
{
    auto* control = new CaptionedControl(&m_form);
    auto* part = new QLabel("Locked", control);
    Translate();
    EXPECT_EQ(part->text(), QString("Locked"));
}

TEST_F(FormTexts, ControlsWithinControlsAreReached)
{
    auto* outer = new QGroupBox("Outer", &m_form);
    auto* inner = new QWidget(outer);
    auto* label = new QLabel("Inner", inner);
    Translate();
    EXPECT_EQ(label->text(), QString("de:Inner"));
}

TEST_F(FormTexts, ActionsAndMenusAreTranslated)
{
    auto* menu = new QMenu("Layer", &m_form);
    QAction* action = menu->addAction("&Rename...");
    action->setToolTip("Give the layer another name.");
    Translate();
    EXPECT_EQ(menu->title(), QString("de:Layer"));
    EXPECT_EQ(action->text(), QString("de:&Rename..."));
    EXPECT_EQ(action->toolTip(), QString("de:Give the layer another name."));
}

TEST_F(FormTexts, AnActionWithoutATipGoesOnDerivingItFromItsText)
{
    auto* action = new QAction("&Rename...", &m_form);
    Translate();
    EXPECT_EQ(action->toolTip(), QString("de:Rename"));
    action->setText("&Delete");
    EXPECT_EQ(action->toolTip(), QString("Delete"));
}

TEST_F(FormTexts, AToolButtonFollowsItsActionThroughTwoLanguages)
{
    auto* action = new QAction("Normal", &m_form);
    auto* button = new QToolButton(&m_form);
    button->setDefaultAction(action);
    Translate("de");
    Translate("fr");
    EXPECT_EQ(action->text(), QString("fr:Normal"));
    EXPECT_EQ(button->text(), QString("fr:Normal"));
}

TEST_F(FormTexts, ASecondCallTranslatesFromEnglishAgain)
{
    auto* label = new QLabel("Priority:", &m_form);
    auto* tabs = new QTabWidget(&m_form);
    tabs->addTab(new QWidget, "Groups");
    Translate("de");
    Translate("de");
    EXPECT_EQ(label->text(), QString("de:Priority:"));
    Translate("fr");
    EXPECT_EQ(label->text(), QString("fr:Priority:"));
    EXPECT_EQ(tabs->tabText(0), QString("fr:Groups"));
    TranslateToEnglish();
    EXPECT_EQ(label->text(), QString("Priority:"));
}

TEST_F(FormTexts, ATextThatTheProgramSetIsLeftAlone)
{
    auto* caption = new QLabel("Priority:", &m_form);
    auto* value = new QLabel(&m_form);
    Translate("de");
    caption->setText("Roads");
    value->setText("Delete");
    Translate("fr");
    EXPECT_EQ(caption->text(), QString("Roads"));
    EXPECT_EQ(value->text(), QString("Delete"));
}

TEST_F(FormTexts, AListFilledAnewIsLeftAlone)
{
    auto* list = new QComboBox(&m_form);
    list->setProperty("staticItems", true);
    list->addItems({"Always", "Never"});
    Translate("de");
    list->clear();
    list->addItems({"Roads", "de:Never"});
    Translate("fr");
    EXPECT_EQ(list->itemText(0), QString("Roads"));
    EXPECT_EQ(list->itemText(1), QString("fr:Never"));
}

TEST_F(FormTexts, AControlMarkedAsNotTranslatableIsLeftOut)
{
    auto* name = new QLabel("Delete", &m_form);
    name->setProperty("notr", true);
    Translate();
    EXPECT_EQ(name->text(), QString("Delete"));
}

TEST_F(FormTexts, AnEmptyTextIsNotLookedUp)
{
    auto* label = new QLabel(&m_form);
    Translate();
    EXPECT_EQ(label->text(), QString(""));
    EXPECT_EQ(label->toolTip(), QString(""));
}

TEST_F(FormTexts, AControlAddedLaterIsTranslatedByTheNextCall)
{
    Translate("de");
    auto* label = new QLabel("Code:", &m_form);
    Translate("fr");
    EXPECT_EQ(label->text(), QString("fr:Code:"));
}

} // namespace Orvane

#include "FormTextsTest.moc"
