// SPDX-License-Identifier: MIT
#include "component/entry/StyleEditorRegistry.h"

#include "component/entry/FakeEditorWindow.h"
#include "support/PseudoLanguage.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QCoreApplication>
#include <QPointer>

#include <gtest/gtest.h>
#include <optional>

namespace Orvane {

namespace {

using Testing::FakeEditorWindow;

void DeleteLater()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

class Registry : public testing::Test
{
protected:
    FakeEditorWindow& Create(const QString& editorID)
    {
        return static_cast<FakeEditorWindow&>(m_registry->Create(editorID));
    }

    std::optional<RunTimeError> ErrorOfCreating(const QString& editorID)
    {
        try {
            m_registry->Create(editorID);
        } catch (const RunTimeError& error) {
            return error;
        }
        return std::nullopt;
    }

    QStringList m_events;
    std::optional<StyleEditorRegistry> m_registry{std::in_place, Testing::FakeEditors(m_events)};
};

} // namespace

TEST_F(Registry, ACreatedEditorIsHiddenNamedAndFound)
{
    const StyleEditorWindow& editor = Create("Main");
    EXPECT_FALSE(editor.isVisible());
    EXPECT_EQ(editor.EditorID(), QString("Main"));
    EXPECT_EQ(m_registry->Find("Main"), &editor);
}

TEST_F(Registry, AnUnknownIdFindsNothing)
{
    EXPECT_EQ(m_registry->Find("Main"), nullptr);
    Create("Main");
    EXPECT_EQ(m_registry->Find("Other"), nullptr);
}

TEST_F(Registry, ADuplicateIdRaises1234AndLeavesTheFirstEditor)
{
    const StyleEditorWindow& first = Create("Main");
    const auto error = ErrorOfCreating("Main");
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Number(), 1234);
    EXPECT_EQ(error->Description(), QString("Style Editor with that ID already exists."));
    EXPECT_EQ(error->Source(), QString());
    EXPECT_EQ(m_registry->Find("Main"), &first);
    EXPECT_EQ(m_registry->EditorIDs(), QStringList("Main"));
    EXPECT_TRUE(m_events.isEmpty());
}

TEST_F(Registry, TheDuplicateErrorIsTranslated)
{
    const Testing::PseudoLanguage pseudo;
    Create("Main");
    EXPECT_EQ(
        ErrorOfCreating("Main")->Description(), Testing::Pseudo("Style Editor with that ID already exists."));
}

TEST_F(Registry, IdsDifferInCaseAndInBlanks)
{
    Create("Main");
    Create("MAIN");
    Create("Main ");
    Create("");
    EXPECT_EQ(m_registry->EditorIDs(), QStringList({"Main", "MAIN", "Main ", ""}));
    EXPECT_NE(m_registry->Find("Main"), m_registry->Find("MAIN"));
}

TEST_F(Registry, AnUnloadedEditorLeavesItsIdFreeAtOnce)
{
    Create("Main").Unload();
    EXPECT_EQ(m_registry->Find("Main"), nullptr);
    const StyleEditorWindow& second = Create("Main");
    DeleteLater();
    EXPECT_EQ(m_registry->Find("Main"), &second);
    EXPECT_EQ(m_events, QStringList("delete Main"));
}

TEST_F(Registry, AnUnloadedEditorIsDeletedWhenItsCodeHasReturned)
{
    Create("Main").Unload();
    EXPECT_TRUE(m_events.isEmpty());
    DeleteLater();
    EXPECT_EQ(m_events, QStringList("delete Main"));
}

TEST_F(Registry, ASecondAnnouncementOfOneWindowChangesNothing)
{
    FakeEditorWindow& former = Create("Main");
    former.Unload();
    const StyleEditorWindow& second = Create("Main");
    emit former.Unloaded("Main");
    EXPECT_EQ(m_registry->Find("Main"), &second);
}

TEST_F(Registry, UnloadingAllGoesInTheOrderOfCreation)
{
    Create("B");
    Create("A");
    Create("C");
    m_registry->UnloadAll();
    EXPECT_EQ(
        m_events,
        QStringList({"unload B without applying", "unload A without applying", "unload C without applying"}));
    EXPECT_TRUE(m_registry->EditorIDs().isEmpty());
}

TEST_F(Registry, ItsEndDeletesAlsoWindowsThatUnloadedBefore)
{
    Create("Closed").Unload();
    const QPointer<StyleEditorWindow> open = &Create("Open");
    m_registry.reset();
    EXPECT_TRUE(open.isNull());
    EXPECT_EQ(m_events.count("delete Closed"), 1);
    DeleteLater();
    EXPECT_EQ(m_events.count("delete Closed"), 1);
}

TEST_F(Registry, AWindowThatTheHostDestroysLeavesTheRegistry)
{
    {
        QWidget parent;
        Create("Main").setParent(&parent);
    }
    EXPECT_EQ(m_registry->Find("Main"), nullptr);
    m_registry.reset();
    EXPECT_EQ(m_events, QStringList("delete Main"));
}

TEST_F(Registry, AWindowThatTheHostDestroysAfterItsUnloadIsNotDeletedAgain)
{
    {
        QWidget parent;
        FakeEditorWindow& editor = Create("Main");
        editor.setParent(&parent);
        editor.Unload();
    }
    m_registry.reset();
    EXPECT_EQ(m_events, QStringList("delete Main"));
}

TEST_F(Registry, AFactoryThatRaisesRegistersNothing)
{
    StyleEditorRegistry registry([]() -> std::unique_ptr<StyleEditorWindow> {
        throw RunTimeError(ErrorNumber::TypeMismatch, "no window");
    });
    EXPECT_THROW(registry.Create("Main"), RunTimeError);
    EXPECT_EQ(registry.Find("Main"), nullptr);
}

} // namespace Orvane
