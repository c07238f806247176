// SPDX-License-Identifier: MIT
#include "component/common/Component.h"
#include "component/common/MessageTable.h"
#include "component/dialog/EditorFixture.h"
#include "support/LinguistFile.h"
#include "support/PseudoLanguage.h"

#include <OrvaneShellLib/IStyleEditor.h>
#include <OrvaneShellLib/IStyleEditorForm.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QtTest>

namespace Orvane::Testing {

namespace {

/// Enlarges the program's font by half during its lifetime.
class LargeFont
{
public:
    LargeFont()
    {
        QFont large = m_before;
        large.setPointSizeF(large.pointSizeF() * 1.5);
        QApplication::setFont(large);
    }
    ~LargeFont() { QApplication::setFont(m_before); }

private:
    QFont m_before = QApplication::font();
};

/// Shows the component in the language of one of its catalogues during its lifetime; English without a name.
class Catalogue
{
public:
    explicit Catalogue(const QString& language)
    {
        const QString file = QStringLiteral("translations/POBEX.%1.ts").arg(language);
        Component::Get().Messages().LoadFile(language.isEmpty() ? QString() : SourcePath(file));
    }
    ~Catalogue() { Component::Get().Messages().LoadFile(QString()); }
    Catalogue(const Catalogue&) = delete;
    Catalogue& operator=(const Catalogue&) = delete;
};

void TurnWheel(QWidget& control)
{
    const QPointF place = control.rect().center();
    QWheelEvent event(
        place, control.mapToGlobal(place.toPoint()), {}, QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
        Qt::NoScrollPhase, false);
    QApplication::sendEvent(&control, &event);
}

// Qt's own arrows, which are shown when the tabs do not fit.
bool IsPartOfTabs(const QWidget& control)
{
    return qobject_cast<const QTabBar*>(control.parentWidget());
}

class ForTheUser : public EditorFixture
{
protected:
    void SetUp() override { AddTown(); }

    void OpenOn(const QString& layer)
    {
        Open();
        ClickLayer(layer);
    }

    /// The names of the visible controls whose text has too little room.
    QStringList ClippedTexts()
    {
        QStringList clipped;
        for (const QWidget* control : Form()->findChildren<QWidget*>()) {
            const bool showsText = qobject_cast<const QAbstractButton*>(control)
                || (qobject_cast<const QLabel*>(control) && control->objectName() != "lblHint")
                || qobject_cast<const QGroupBox*>(control);
            if (IsPartOfTabs(*control))
                continue;
            if (showsText && control->isVisible() && control->width() < control->minimumSizeHint().width())
                clipped.append(control->objectName());
        }
        return clipped;
    }

    /// The captions of the visible controls whose mnemonic another one has too.
    QStringList SharedMnemonics()
    {
        QHash<QString, QStringList> captions;
        for (const QWidget* control : Form()->findChildren<QWidget*>()) {
            const QString text = control->property("text").toString();
            const QString key = QKeySequence::mnemonic(text).toString();
            if (control->isVisible() && !key.isEmpty())
                captions[key].append(text);
        }
        QStringList shared;
        for (const QStringList& some : captions)
            shared += some.size() > 1 ? some : QStringList();
        return shared;
    }

    /// The names of the controls of all tabs whose text has too little room.
    QStringList ClippedTextsAnywhere()
    {
        Open();
        ClickTab(2);
        ClickLayer("Roads");
        QStringList clipped = ClippedTexts();
        ClickTab(1);
        ClickGroup("Transport");
        clipped += ClippedTexts();
        ClickTab(3);
        clipped += ClippedTexts();
        Close();
        return clipped;
    }
};

TEST_F(ForTheUser, EveryControlHasATextOrAnAccessibleName)
{
    Open();
    for (const QWidget* control : Form()->findChildren<QWidget*>()) {
        if (control->objectName().startsWith("qt_") || !(control->focusPolicy() & Qt::TabFocus)
            || control->focusProxy() || control->objectName().isEmpty())
            continue;
        const auto* button = qobject_cast<const QAbstractButton*>(control);
        const bool hasText = button && !button->text().isEmpty();
        const QList<QLabel*> labels = Form()->findChildren<QLabel*>();
        const bool hasBuddy = std::any_of(
            labels.begin(), labels.end(), [&](const QLabel* label) { return label->buddy() == control; });
        EXPECT_TRUE(hasText || hasBuddy || !control->accessibleName().isEmpty())
            << qPrintable(control->objectName());
    }
}

TEST_F(ForTheUser, NoTwoControlsOfATabShareAMnemonicInAnyLanguage)
{
    Library();
    for (const char* language : {"", "de", "fr", "ja"}) {
        const Catalogue catalogue(language);
        StoreViewState({});
        OpenOn("Roads");
        for (const int tab : {1, 2, 3}) {
            ClickTab(tab);
            if (tab == 1)
                ClickGroup("Transport");
            EXPECT_EQ(SharedMnemonics(), QStringList()) << language << " on tab " << tab;
        }
        Close();
    }
}

TEST_F(ForTheUser, EveryTextHasRoomInEveryLanguage)
{
    Library();
    for (const char* language : {"de", "fr", "ja"}) {
        const Catalogue catalogue(language);
        EXPECT_EQ(ClippedTextsAnywhere(), QStringList()) << language;
    }
}

TEST_F(ForTheUser, TheWheelChangesNoListThatHasNotTheFocus)
{
    host.schemeNames = QStringList{"Standard", "Night"};
    OpenOn("Roads");
    const auto texts = [this] {
        QStringList shown;
        for (const QComboBox* list : Form()->findChildren<QComboBox*>())
            shown.append(list->currentText());
        return shown;
    };
    for (const int tab : {3, 2}) {
        ClickTab(tab);
        const QStringList before = texts();
        MessageBoxRobot nobody{};
        for (QComboBox* list : Form()->findChildren<QComboBox*>()) {
            list->clearFocus();
            TurnWheel(*list);
        }
        EXPECT_EQ(texts(), before);
        EXPECT_FALSE(CanApply());
    }
}

TEST_F(ForTheUser, EveryTextHasRoom)
{
    EXPECT_EQ(ClippedTextsAnywhere(), QStringList());
}

TEST_F(ForTheUser, EveryTextHasRoomInALargeFont)
{
    const LargeFont large;
    EXPECT_EQ(ClippedTextsAnywhere(), QStringList());
}

TEST_F(ForTheUser, EveryTextHasRoomWhenItIsLongerByHalf)
{
    Library();
    const PseudoLanguage pseudo;
    EXPECT_EQ(ClippedTextsAnywhere(), QStringList());
}

TEST_F(ForTheUser, EveryTextOfTheFormIsTranslated)
{
    Library();
    const PseudoLanguage pseudo;
    OpenOn("Roads");
    const QStringList untranslated{"<<", "11", "100", "1:1000"};
    for (const QWidget* control : Form()->findChildren<QWidget*>()) {
        if (IsPartOfTabs(*control))
            continue;
        const bool isCaption
            = qobject_cast<const QLabel*>(control) || qobject_cast<const QAbstractButton*>(control);
        const QString text = isCaption ? control->property("text").toString() : QString();
        for (const QString& shown : {text, control->toolTip(), control->accessibleName()}) {
            const bool isOwn = shown.isEmpty() || untranslated.contains(shown);
            EXPECT_TRUE(isOwn || shown.startsWith('[')) << qPrintable(control->objectName() + ": " + shown);
        }
    }
}

TEST_F(ForTheUser, ToolTipsExplainTheWordsOfTheForm)
{
    OpenOn("Roads");
    for (const char* name : {"lblScaleMin", "lblScaleMax", "cmdEditMinScale", "cmdEditMaxScale"})
        EXPECT_TRUE(Find(name).toolTip().contains("\"dont care\"")) << name;
    EXPECT_TRUE(Find("chkHitable").toolTip().contains("clicked on the map"));
    EXPECT_TRUE(Find("chkEnquirable").toolTip().contains("attributes"));
    EXPECT_TRUE(Find("chkSnapRequired").toolTip().contains("snap to them"));
    EXPECT_TRUE(Find("Backdrop").toolTip().contains("faintly, behind the others"));
}

TEST_F(ForTheUser, AChangeOfLanguageIsShownAtOnceAndKeepsTheEdits)
{
    Library();
    {
        const PseudoLanguage pseudo;
        OpenOn("Rivers");
        ChooseScale("cmdEditMaxScale", 256);
        EXPECT_EQ(TextOf("lblScaleMax"), Pseudo("dont care"));
    }
    // The form reads the messages again, from a folder without any, so it is in English.
    QEvent change(QEvent::LanguageChange);
    QApplication::sendEvent(Form(), &change);
    EXPECT_EQ(TextOf("lblScaleMax"), "dont care");
    EXPECT_EQ(TextOf("lblMin"), "&Minimum:");
    EXPECT_EQ(Form()->windowTitle(), "Layer Control");
    EXPECT_EQ(Find<QComboBox>("cboStyle").itemText(0), "Standard");
    EXPECT_TRUE(IsUnderlined("lblScaleMax"));
    EXPECT_TRUE(CanApply());
    EditorForm().UnloadWithoutApply();
}

TEST_F(ForTheUser, ALargerFontWhileItIsOpenStillFits)
{
    OpenOn("Roads");
    const LargeFont large;
    EXPECT_TRUE(QTest::qWaitFor([&] { return ClippedTexts().isEmpty(); }))
        << qPrintable(ClippedTexts().join(' '));
}

TEST_F(ForTheUser, AValueNeverMakesTheDialogWider)
{
    OpenOn("Roads");
    const int before = Find("picLayerStyle").width();
    ChooseScale("cmdEditMinScale", 255);
    QApplication::processEvents();
    EXPECT_EQ(Find("picLayerStyle").width(), before);
}

} // namespace

} // namespace Orvane::Testing
