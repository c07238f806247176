// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/EditorFixture.h"
#include "component/dialog/session/PaperDialog.h"
#include "hosts/FailingClient.h"
#include "hosts/NotesClient.h"
#include "support/Dice.h"

namespace Orvane::Testing {

/// Closes every message box that opens during its lifetime, a question with the given answer, and keeps the
/// texts.
class AnsweringUser : public QObject
{
public:
    AnsweringUser();

    Paper::Dialog::Answer answer = Paper::Dialog::Answer::No;
    QStringList TakeBoxes() { return std::exchange(m_boxes, {}); }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QStringList m_boxes;
};

/// A layer control over a map of a dozen layers, and models of what both should be.
class SessionFixture : public EditorFixture
{
public:
    using EditorFixture::Click;
    using EditorFixture::ClickTab;
    using EditorFixture::Editor;
    using EditorFixture::EditorForm;
    using EditorFixture::EditWithSlider;
    using EditorFixture::Find;
    using EditorFixture::Form;
    using EditorFixture::host;

    explicit SessionFixture(unsigned seed);

    void OpenEditor();
    /// Shows the settings if they are hidden; false when nothing can be edited.
    bool CanEdit();
    /// Chooses the user's next answer to a question, for the dialog and for the model.
    Paper::Dialog::Answer DecideAnswer();
    void Settle();

    QTreeView& Tree(Paper::ListNumber number);
    std::optional<Paper::Node> SelectedNode(Paper::ListNumber number);
    static Paper::Node NodeAt(const QModelIndex& index);
    /// The list that the user sees; not in the Schemes tab.
    Paper::ListNumber ShownList() const { return dialog.tab == 1 ? Paper::Groups : Paper::Layers; }

    /// Compares the database, the lists, the settings and the message boxes with the model.
    void Check();
    /// The settings alone.
    void CheckPanel();
    /// The nodes of a list, group by group, in any order.
    void CheckNodes(Paper::ListNumber number, const std::vector<Paper::Branch>& expected);
    /// Call after a planned failure: plans no more, and if it interrupted an operation, sets the model to
    /// what is stored and listed now.
    void StartAgain(bool hasFailed);

    /// An ID that no layer and no group has had.
    qint32 NewID() { return ++m_lastID; }
    /// One that no other has, with a word of the letters b, c, d, f and g.
    QString NewName();

    Dice dice;
    Paper::Map map;
    Paper::Dialog dialog;
    AnsweringUser user;
    NotesClient<FailingClient> client; ///< may fail

private:
    void FillMap();
    void CheckLists();
    void CheckControls();
    void CheckMarks();

    int m_names = 0;
    qint32 m_lastID = 12;
    int m_redraws = 0;
};

} // namespace Orvane::Testing
