// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <functional>
#include <utility>

class QContextMenuEvent;
class QKeyEvent;
class QMenu;
class QTreeView;

namespace Orvane {

/// What a user does to a tree besides choosing nodes by mouse and key, and renaming them: the context menu,
/// and the Delete key.
class LayerTreeGestures : public QObject
{
    Q_OBJECT

public:
    /// view: not owned. mayRename: called each time the menu opens; returns whether the selected node may be
    /// renamed; may raise.
    LayerTreeGestures(QTreeView* view, std::function<bool()> mayRename, QObject* parent = nullptr);

    /// Offers to show samples of line and fill. isShown: called each time the menu opens.
    void OfferSamples(std::function<bool()> isShown) { m_showsSamples = std::move(isShown); }

    /// opener: gets what opens the menu each time the user asks for it, and calls it at once, later or not at
    /// all. It may raise. Without an opener, the menu opens at once.
    void OpenMenusBy(std::function<void(const std::function<void()>& open)> opener)
    {
        m_opener = std::move(opener);
    }

signals:
    void RenameRequested();
    void ExpandAllRequested(bool expanded);
    void DeleteRequested();
    void SamplesRequested(bool show);
    /// The menu is about to open: receivers add their entries.
    void MenuOpening(QMenu* menu);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool HandleKey(const QKeyEvent& event);
    void OpenMenuByKey();
    void RequestMenu(const QContextMenuEvent& event);
    void OpenMenu(bool isByKey, const QPoint& place);
    void FillMenu(QMenu& menu);
    void AddChoosing(QMenu& menu, bool hasGroups);
    void AddSamples(QMenu& menu);

    QTreeView* m_view;
    std::function<bool()> m_mayRename;
    std::function<bool()> m_showsSamples;
    std::function<void(const std::function<void()>& open)> m_opener;
};

} // namespace Orvane
