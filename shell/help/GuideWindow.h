// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QAction;
class QHBoxLayout;
class QKeySequence;
class QTreeWidget;
class QTreeWidgetItem;

namespace Orvane {

class GuideBrowser;

/// The guide in a window: its contents at the left, a page at the right, above them the ways back and forward
/// and a field that finds words.
class GuideWindow : public QWidget
{
    Q_OBJECT
public:
    /// The page with which the guide begins: where it is beside the program, as built or as installed. Empty
    /// if it is not there.
    static QString FirstPage();

    /// parent: nullptr for a window that does not keep the program open. Raises if there is no guide.
    explicit GuideWindow(QWidget* parent = nullptr);

    /// Shows that section (GuidePlaces.h); the beginning for an unknown one.
    void ShowSection(const QString& section);
    GuideBrowser& Browser() const { return *m_browser; }

    QSize sizeHint() const override { return {1000, 760}; }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void AddSteps(QHBoxLayout& row);
    QAction* AddStep(QHBoxLayout& row, const char* name, const QString& text, const QKeySequence& key);
    void FillContents();
    void VisitItem(const QTreeWidgetItem& item);
    void ShowPlace();
    QTreeWidgetItem* ItemOf(const QString& section) const;

    GuideBrowser* m_browser; // all owned by this window
    QTreeWidget* m_contents;
    QAction* m_back = nullptr;
    QAction* m_forward = nullptr;
    QString m_firstPage;
};

} // namespace Orvane
