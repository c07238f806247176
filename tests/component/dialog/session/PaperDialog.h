// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/session/PaperList.h"
#include "component/dialog/session/PaperMap.h"

#include <functional>
#include <set>

namespace Orvane::Testing::Paper {

enum ListNumber { Groups, Layers };

/// What the settings show.
struct Panel {
    std::optional<Node> node;
    Values record;
    Values shown;
    std::set<int> marked; ///< properties
    QString code;
    std::optional<double> storedCode;
    bool isCodeMarked = false;
    bool canEditCode = false;
    qsizetype layers = 0; ///< that were read
    int loadedMode = 0;
    int mode = 0;

    bool operator==(const Panel&) const = default;
};

/// A model of what the layer control should show and do: each operation of the user or of the host changes
/// the map and the screen as the dialog should.
///
///     dialog.Choose(node, Answer::Yes);
///     EXPECT_EQ(dialog.TakeBoxes(), boxesSeen);
///
/// The answer to a question is given in advance; the texts of the message boxes are kept for comparison.
class Dialog
{
public:
    enum class Answer { Yes, No };
    /// The node that the real dialog selected when the current one was removed: any neighbour is correct.
    using LookAtNode = std::function<std::optional<Node>(ListNumber)>;

    Dialog(Map& map, LookAtNode look) : m_map(map), m_look(std::move(look)) { }

    // What is on the screen.

    int tab = 2; ///< 1 groups, 2 layers, 3 schemes
    ListNumber shownList = Groups;
    std::array<List, 2> lists;
    std::vector<Node> more; ///< chosen in the shown list besides its current node
    Panel panel;
    bool isModified = false;
    int redraws = 0; ///< since the start
    std::function<bool(qint32 layerID)> isFilteredOut; ///< empty without a filter

    /// The current node of the shown list, if it is listed.
    std::optional<Node> CurrentNode() const;
    bool CanEdit() const { return tab != 3 && panel.node; }
    /// What the bar above the lists says, after layers were shown or hidden; empty without it.
    QString BarText() const;
    /// The layers of all chosen nodes, each once.
    std::vector<qint32> ChosenLayerIDs() const;
    /// The texts of the message boxes since the last call.
    QStringList TakeBoxes() { return std::exchange(m_boxes, {}); }
    /// Records a message box that the user sees.
    void Tell(const QString& text) { m_boxes.append(text); }

    std::vector<qint32> LayerIDsOf(const Node& node) const;

    // What the user does.

    void ShowTab(int wanted, Answer answer);
    void ClickShownTab(Answer answer);
    void Choose(const Node& node, Answer answer);
    /// Chooses the node besides those that are chosen; it is the current one then.
    void ChooseMore(const Node& node, Answer answer);
    void Apply();
    void Load();
    void SetFlag(Property flag);
    /// Sets the value that the control shows; nothing for "various".
    void SetValues(const std::vector<std::pair<Property, std::optional<double>>>& values);
    void SetMinScale(std::optional<double> index);
    void SetMaxScale(std::optional<double> index);
    void SetMode(int mode);
    void EnterCode(const QString& text);
    void Rename(const Node& node, const QString& name);
    void DeleteLayer();
    /// Shows or hides the layers at once.
    void SetHidden(const std::vector<qint32>& layerIDs, bool hidden);
    void ShowOnlyChosen();
    void ShowAllAgain();
    /// Only the nodes that have all words are listed until the end of the find.
    void Find(const QStringList& words);
    void EndFind();

    // What the host does.

    void Open(int storedTab);
    /// The edits may be applied first.
    void Close(Answer answer) { Ask(answer); }
    void AddNewLayer(qint32 layerID, Answer answer);
    void RefreshGroups();
    void ReadLayersAgain(Answer answer);
    void SetLayerCode(qint32 layerID);
    void ForgetLists();

private:
    void Ask(Answer answer);
    void TellThatNothingWasWritten(const Node& node);
    void EnsureLoaded(ListNumber number, Answer answer);
    void LoadList(ListNumber number, Answer answer);
    std::vector<Branch> Read(ListNumber number) const;
    std::vector<Branch> ReadGroups() const;
    std::vector<Branch> ReadLayers() const;
    bool IsHidden(qint32 layerID) const;
    Entry EntryOf(qint32 layerID) const;
    std::vector<const Layer*> ChosenLayers() const;
    void Read();
    int ReadMode();
    bool IsMarked(Property property) const;
    Values ValuesToWrite(const Layer& layer) const;
    void ChooseAgain();
    void Mark(Property property);
    std::map<qint32, int> ListedModes() const;
    bool IsShownOnlyMode(qint32 layerID, int mode) const;
    void StoreModes(const std::map<qint32, int>& modes);
    void FollowModes(const std::map<qint32, int>& modes);

    Map& m_map;
    LookAtNode m_look;
    QStringList m_boxes;
    std::map<qint32, int> m_ownModes; // of the layers that "Show Only These" has hidden or shown
    bool m_hasLeftNode = false; // a find does not list it
};

} // namespace Orvane::Testing::Paper
