// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>
#include <QMessageBox>
#include <QModelIndex>
#include <QObject>
#include <QPointer>
#include <QStringList>

#include <functional>
#include <optional>
#include <stdexcept>
#include <utility>
#include <vector>

class QTreeView;

namespace Orvane::Testing {

/// The user of a layer control: acts on its controls by their names, and answers its message boxes.
class DialogUser : public QObject
{
public:
    /// form: finds the form, nullptr while there is none.
    explicit DialogUser(std::function<QWidget*()> form);

    bool answersYes = false; ///< to questions; a conflict is always answered with the user's values
    QStringList TakeBoxes() { return std::exchange(m_boxes, {}); }

    template <typename Widget = QWidget> Widget& Find(const char* name)
    {
        auto* found = m_form()->findChild<Widget*>(QLatin1String(name));
        if (!found)
            throw std::runtime_error(name);
        return *found;
    }

    void Click(const char* name);
    /// 1 groups, 2 layers.
    void ClickTab(int tab);
    /// Selects the n-th group or layer of the shown list. False without one.
    bool ClickNode(int tab, int row);
    /// Chooses these groups or layers of the shown list together, with Ctrl.
    void ClickNodes(int tab, const std::vector<int>& rows);
    /// Picks the entry from the menu of the shown list. False if it is missing or disabled.
    bool Pick(int tab, const QString& entry);
    int Rows(int tab);
    /// The texts of the rows: of the groups, or of the layers.
    QStringList Texts(int tab);
    /// The texts of the chosen nodes.
    QStringList ChosenTexts(int tab);
    bool CanEdit();
    /// Whether the box is ticked; nothing for "various".
    std::optional<bool> FlagOf(const char* name);
    /// Selects another entry with a key; its data, nothing for "various".
    std::optional<int> StepThrough(const char* list, int key);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QTreeView& Tree(int tab);
    bool ClickNode(int tab, int row, Qt::KeyboardModifiers modifiers);
    void Answer(QMessageBox& box);

    std::function<QWidget*()> m_form;
    QStringList m_boxes;
};

} // namespace Orvane::Testing
