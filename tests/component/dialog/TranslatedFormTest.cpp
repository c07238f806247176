// SPDX-License-Identifier: MIT
#include "component/common/Component.h"
#include "component/dialog/EditorFixture.h"
#include "support/LinguistFile.h"
#include "support/PseudoLanguage.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLocale>
#include <QTemporaryDir>

#include <algorithm>

namespace Orvane::Testing {

namespace {

bool HasLetter(const QString& text)
{
    return std::any_of(text.begin(), text.end(), [](QChar character) { return character.isLetter(); });
}

bool IsTranslated(const QString& text)
{
    return !HasLetter(text) || text.startsWith(u'[');
}

// The text that a label or a button shows; nothing for other widgets and for word-wrapped text, which may
// grow downwards.
QString Caption(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->wordWrap() ? QString() : label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return button->text();
    return {};
}

class TranslatedForm : public EditorFixture
{
protected:
    void SetUp() override
    {
        AddTown();
        Create();
    }

    ~TranslatedForm() override
    {
        QLocale::setDefault(m_locale);
        Component::Get().SetMessageFolder(QString());
        Component::Get().LoadMessages();
    }

    // Every visible widget of the form on each tab, with a layer selected.
    template <typename Look> void OnEachTab(Look&& look)
    {
        Open();
        ClickTab(2);
        ClickLayer("Parcels");
        for (int tab : {2, 1, 3}) {
            ClickTab(tab);
            for (QWidget* widget : Form()->findChildren<QWidget*>()) {
                // Qt translates the arrows of tabs without enough room.
                if (widget->isVisible() && !qobject_cast<QTabBar*>(widget->parentWidget()))
                    look(*widget);
            }
        }
    }

    void Speak(const QString& language, QEvent::Type type = QEvent::LanguageChange)
    {
        QLocale::setDefault(QLocale(language));
        Component::Get().SetMessageFolder(m_folder.path());
        QEvent change(type);
        QApplication::sendEvent(Form(), &change);
    }

    QTemporaryDir m_folder;
    QLocale m_locale;
};

} // namespace

TEST_F(TranslatedForm, ShowsNoCaptionInAnotherLanguage)
{
    const PseudoLanguage pseudo;
    int captions = 0;
    OnEachTab([&](const QWidget& widget) {
        EXPECT_TRUE(IsTranslated(Caption(widget)) || widget.property("notr").toBool())
            << qPrintable(widget.objectName()) << ": " << qPrintable(Caption(widget));
        captions += Caption(widget).startsWith(u'[') ? 1 : 0;
    });
    EXPECT_GT(captions, 20);
    EXPECT_EQ(Form()->windowTitle(), Pseudo("Layer Control"));
}

TEST_F(TranslatedForm, ShowsNoTipAndNoAccessibleNameInAnotherLanguage)
{
    const PseudoLanguage pseudo;
    OnEachTab([](const QWidget& widget) {
        EXPECT_TRUE(IsTranslated(widget.toolTip())) << qPrintable(widget.toolTip());
        EXPECT_TRUE(IsTranslated(widget.accessibleName())) << qPrintable(widget.accessibleName());
    });
}

TEST_F(TranslatedForm, CutsNoCaptionThatIsLongerByHalf)
{
    const PseudoLanguage pseudo;
    OnEachTab([](const QWidget& widget) {
        if (Caption(widget).isEmpty())
            return;
        EXPECT_LE(widget.minimumSizeHint().width(), widget.width())
            << qPrintable(widget.objectName()) << ": " << qPrintable(Caption(widget));
    });
}

TEST_F(TranslatedForm, FollowsAChangeOfLanguageWhileItIsOpen)
{
    WriteFile(
        m_folder.filePath("de/POBEX.LRT"),
        LinguistDocument({{"&Apply", "An&wenden"}, {"Groups", "Gruppen"}}));
    Open();
    Speak("de_DE");
    EXPECT_EQ(Find<QAbstractButton>("cmdApply").text(), QString("An&wenden"));
    EXPECT_EQ(Find<QTabBar>("tsLists").tabText(0), QString("Gruppen"));
    Speak("en_GB");
    EXPECT_EQ(Find<QAbstractButton>("cmdApply").text(), QString("&Apply"));
    EXPECT_EQ(Find<QTabBar>("tsLists").tabText(0), QString("Groups"));
}

TEST_F(TranslatedForm, FollowsAChangeOfTheLocaleAlone)
{
    WriteFile(
        m_folder.filePath("de/POBEX.LRT"),
        LinguistDocument({{"&Apply", "An&wenden"}, {"dont care", "beliebig"}, {"1:^1", "1:^1"}}));
    Open();
    ClickLayer("Roads");
    Speak("de_DE", QEvent::LocaleChange);
    EXPECT_EQ(Find<QAbstractButton>("cmdApply").text(), QString("An&wenden"));
    EXPECT_EQ(TextOf("lblScaleMax"), QString("beliebig"));
    EXPECT_FALSE(CanApply());
    Speak("en_GB", QEvent::LocaleChange);
    EXPECT_EQ(TextOf("lblScaleMax"), QString("dont care"));
}

} // namespace Orvane::Testing
