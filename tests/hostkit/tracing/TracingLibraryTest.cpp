// SPDX-License-Identifier: MIT
#include "hostkit/tracing/TracingLibrary.h"

#include "hostkit/tracing/TracingTest.h"
#include "hosts/EmptyEditorForm.h"

#include <OrvaneShellLib/IStyleEditor.h>
#include <OrvaneShellLib/IStyleEditorRefresh.h>
#include <OrvaneShellLib/IStyleEditorTexts.h>
#include <OrvaneShellLib/IStyleFilter.h>

#include <QBuffer>

#include <map>

namespace Orvane::Testing {
namespace {

using testing::ElementsAre;

// An editor that only records its calls.
class PlainEditor : public IStyleEditor, public EmptyEditorForm
{
public:
    const IStyleFilter* filter = nullptr;
    bool visible = false;

private:
    void IStyleEditor_StyleFilter(const IStyleFilter* given) override { filter = given; }
    bool IStyleEditor_Visible() const override { return visible; }
    void IStyleEditor_Visible(bool shown) override { visible = shown; }
    void IStyleEditor_RefreshGroups() override { }
    const IStyleFilter* IStyleEditorForm_Filter() const override { return filter; }
    void IStyleEditorForm_Filter(const IStyleFilter* given) override { filter = given; }
    bool IStyleEditorForm_HasPendingEdits() const override { return visible; }
    void IStyleEditorForm_Refresh() override { visible = true; }
};

class PlainLibrary : public IStyleEditorLibrary
{
public:
    std::map<QString, PlainEditor> editors;
    IStyleEditorClient* client = nullptr;

private:
    IStyleEditor* IStyleEditorLibrary_GetStyleEditor(const QString& id) const noexcept override
    {
        const auto found = editors.find(id);
        return found == editors.end() ? nullptr : const_cast<PlainEditor*>(&found->second);
    }
    void IStyleEditorLibrary_Initialise(IStyleEditorClient* given) override { client = given; }
    IStyleEditor* IStyleEditorLibrary_NewStyleEditor(const QString& id) override
    {
        if (editors.contains(id))
            throw RunTimeError(ErrorNumber::DuplicateEditorID, QStringLiteral("exists"));
        return &editors[id];
    }
};

class LibraryWithTexts : public PlainLibrary, public IStyleEditorTexts
{
public:
    QStringList added;

private:
    void IStyleEditorTexts_AddTexts(const QString& language, QIODevice&) override { added << language; }
    void IStyleEditorTexts_AddTextFolder(const QString& folder) override { added << folder; }
};

class OddLayersOnly : public IStyleFilter
{
    bool IStyleFilter_ShowsGroups() const override { return true; }
    bool IStyleFilter_IsLayerShown(qint32 layerID, bool) const override { return layerID % 2 == 1; }
};

const QString Main = QStringLiteral("Main");

class LibraryTrace : public TracingTest
{
protected:
    IStyleEditorLibrary& Library() { return m_traced; }
    IStyleEditor& MainEditor()
    {
        IStyleEditor* editor = Library().NewStyleEditor(Main);
        Lines();
        return *editor;
    }

    PlainLibrary m_library;
    TracingLibrary m_traced{m_library, m_trace};
};

TEST_F(LibraryTrace, ShowsTheHostsCallsInOrder)
{
    Library().Initialise(&m_host);
    Library().GetStyleEditor(Main);
    IStyleEditor* editor = Library().NewStyleEditor(Main);
    editor->Visible(true);
    editor->RefreshGroups();
    std::as_const(*editor).Visible();
    EXPECT_EQ(m_library.client, &m_host);
    EXPECT_THAT(
        Lines(),
        ElementsAre(
            QStringLiteral("library.Initialise(client)"),
            QStringLiteral("library.GetStyleEditor(\"Main\") -> nothing"),
            QStringLiteral("library.NewStyleEditor(\"Main\")"), QStringLiteral("editor.Visible(true)"),
            QStringLiteral("editor.RefreshGroups()"), QStringLiteral("editor.Visible() -> true")));
}

TEST_F(LibraryTrace, ADuplicateEditorIsALineWithItsError)
{
    Library().NewStyleEditor(Main);
    Lines();
    EXPECT_EQ(ErrorOf([&] { Library().NewStyleEditor(Main); }), 1234);
    EXPECT_EQ(
        Lines().constLast(), QStringLiteral("library.NewStyleEditor(\"Main\") -> error 1234 \"exists\""));
}

TEST_F(LibraryTrace, PassesTextsOnAndShowsTheirNames)
{
    LibraryWithTexts library;
    TracingLibrary traced(library, m_trace);
    QBuffer document;
    traced.AddTexts(QStringLiteral("nl"), document);
    traced.AddTextFolder(QStringLiteral("texts"));
    EXPECT_THAT(library.added, ElementsAre(QStringLiteral("nl"), QStringLiteral("texts")));
    EXPECT_THAT(
        Lines(),
        ElementsAre(
            QStringLiteral("library.AddTexts(\"nl\")"), QStringLiteral("library.AddTextFolder(\"texts\")")));
}

TEST_F(LibraryTrace, RefusesTextsThatTheLibraryDoesNotTake)
{
    const auto add = [this] { m_traced.AddTextFolder(QStringLiteral("texts")); };
    EXPECT_EQ(ErrorOf(add), int(ErrorNumber::PluginFailure));
}

TEST_F(LibraryTrace, TheSameEditorIsFoundAgain)
{
    IStyleEditor& editor = MainEditor();
    EXPECT_EQ(Library().GetStyleEditor(Main), &editor);
    EXPECT_THAT(Lines(), ElementsAre(QStringLiteral("library.GetStyleEditor(\"Main\") -> editor")));
}

TEST_F(LibraryTrace, AnEditorOfTheSameIDMadeAnewWorks)
{
    MainEditor();
    m_library.editors.clear();
    MainEditor().Visible(true);
    EXPECT_TRUE(m_library.editors[Main].visible);
}

TEST_F(LibraryTrace, ShowsWhatTheComponentAsksTheFilter)
{
    OddLayersOnly filter;
    MainEditor().StyleFilter(&filter);
    const IStyleFilter* given = m_library.editors[Main].filter;
    EXPECT_TRUE(given->ShowsGroups());
    EXPECT_FALSE(given->IsLayerShown(4, true));
    EXPECT_THAT(
        Lines(),
        ElementsAre(
            QStringLiteral("editor.StyleFilter(filter)"), QStringLiteral("filter.ShowsGroups() -> true"),
            QStringLiteral("filter.IsLayerShown(4, true) -> false")));
}

TEST_F(LibraryTrace, TheHostReadsBackItsOwnFilter)
{
    OddLayersOnly filter;
    auto& form = dynamic_cast<IStyleEditorForm&>(MainEditor());
    form.Filter(&filter);
    EXPECT_EQ(form.Filter(), &filter);
    form.Filter(nullptr);
    EXPECT_EQ(form.Filter(), nullptr);
    EXPECT_EQ(m_library.editors[Main].filter, nullptr);
}

TEST_F(LibraryTrace, ShowsTheCallsToTheForm)
{
    auto& form = dynamic_cast<IStyleEditorForm&>(MainEditor());
    EXPECT_EQ(form.EditorID(), Main);
    form.AddNewLayer(17);
    form.Popup();
    form.SetLayerCode(17);
    form.SetLayerName(17, QStringLiteral("Roads"));
    EXPECT_EQ(form.LoadRendererStyles().size(), 1u);
    form.RefreshLayerNames({17, 18});
    form.UnloadWithoutApply();
    EXPECT_FALSE(form.HasPendingEdits());
    form.Refresh();
    EXPECT_TRUE(form.HasPendingEdits());
    dynamic_cast<IStyleEditorRefresh&>(form).RefreshLayers({17, 18});
    EXPECT_THAT(
        Lines(),
        ElementsAre(
            QStringLiteral("form.EditorID() -> \"Main\""), QStringLiteral("form.AddNewLayer(17)"),
            QStringLiteral("form.Popup()"), QStringLiteral("form.SetLayerCode(17)"),
            QStringLiteral("form.SetLayerName(17, \"Roads\")"), QStringLiteral("form.LoadRendererStyles()"),
            QStringLiteral("form.RefreshLayerNames(2)"), QStringLiteral("form.UnloadWithoutApply()"),
            QStringLiteral("form.HasPendingEdits() -> false"), QStringLiteral("form.Refresh()"),
            QStringLiteral("form.HasPendingEdits() -> true"), QStringLiteral("form.Refresh()")))
        << "an editor of an earlier contract has no RefreshLayers";
}

} // namespace
} // namespace Orvane::Testing
