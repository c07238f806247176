// SPDX-License-Identifier: MIT
#include "component/dialog/session/SessionDeeds.h"
#include "component/dialog/session/SessionFixture.h"

#include <OrvaneShellLib/IStyleEditor.h>
#include <OrvaneShellLib/IStyleEditorForm.h>
#include <OrvaneShellLib/IStyleFilter.h>

namespace Orvane::Testing {

namespace {

using namespace Paper;

/// Leaves out the layers whose number is a multiple of the divisor.
class DivisorFilter : public IStyleFilter
{
public:
    explicit DivisorFilter(int divisor) : m_divisor(divisor) { }
    bool Hides(qint32 layerID) const { return layerID % m_divisor == 0; }

private:
    bool IStyleFilter_ShowsGroups() const override { return false; }
    bool IStyleFilter_IsLayerShown(qint32 layerID, bool) const override { return !Hides(layerID); }

    int m_divisor;
};

const DivisorFilter* ChooseFilter(SessionFixture& session)
{
    static const std::array filters{DivisorFilter(2), DivisorFilter(3)};
    const int choice = session.dice.Below(4);
    const DivisorFilter* filter = choice < 2 ? &filters[size_t(choice)] : nullptr;
    session.dialog.isFilteredOut = nullptr;
    if (filter)
        session.dialog.isFilteredOut = [filter](qint32 layerID) { return filter->Hides(layerID); };
    return filter;
}

void HandOverFilter(SessionFixture& session)
{
    session.Editor().StyleFilter(ChooseFilter(session));
    session.dialog.lists[Layers].isStale = true;
}

void WriteFilter(SessionFixture& session)
{
    const auto answer = session.DecideAnswer();
    session.EditorForm().Filter(ChooseFilter(session));
    session.dialog.ReadLayersAgain(answer);
}

void RefreshGroups(SessionFixture& session)
{
    session.Editor().RefreshGroups();
    session.dialog.RefreshGroups();
}

void AddNewLayer(SessionFixture& session)
{
    const qint32 layerID = session.dice.Below(30);
    const auto answer = session.DecideAnswer();
    session.EditorForm().AddNewLayer(layerID);
    session.dialog.AddNewLayer(layerID, answer);
}

void SetLayerName(SessionFixture& session)
{
    if (session.map.layers.empty())
        return;
    const Node node{false, 0, session.dice.OneOf(session.map.layers).first};
    const QString name = session.NewName();
    session.EditorForm().SetLayerName(node.layerID, name);
    session.dialog.Rename(node, name);
}

void SetLayerCode(SessionFixture& session)
{
    const qint32 layerID = session.dice.Below(15);
    session.EditorForm().SetLayerCode(layerID);
    session.dialog.SetLayerCode(layerID);
}

void ShowAgain(SessionFixture& session)
{
    session.Editor().Visible(true);
    session.EditorForm().Popup();
}

void HideAndShow(SessionFixture& session)
{
    const auto answer = session.DecideAnswer();
    const bool closesWindow = session.dice.Chance(50);
    if (closesWindow)
        session.Form()->close();
    else
        session.Editor().Visible(false);
    EXPECT_EQ(session.Form(), nullptr);
    session.dialog.Close(answer);
    session.OpenEditor();
}

void UnloadAndShow(SessionFixture& session)
{
    session.EditorForm().UnloadWithoutApply();
    session.OpenEditor();
}

} // namespace

std::vector<Deed> HostDeeds()
{
    return {{"hand over a filter", 1, HandOverFilter},    {"write a filter", 1, WriteFilter},
            {"refresh the groups", 2, RefreshGroups},     {"add a layer to the list", 2, AddNewLayer},
            {"set the name of a layer", 1, SetLayerName}, {"set the code of a layer", 1, SetLayerCode},
            {"show what is shown", 1, ShowAgain},         {"hide and show", 2, HideAndShow},
            {"unload and show", 1, UnloadAndShow}};
}

} // namespace Orvane::Testing
