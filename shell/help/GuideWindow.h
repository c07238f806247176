// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QTreeWidget;
class QTreeWidgetItem;

namespace Orvane {

class GuideBrowser;

/// The guide in a window: its contents at the left, a page at the right.
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
    void FillContents();
    QTreeWidgetItem* ItemOf(const QString& section) const;

    GuideBrowser* m_browser; // both owned by this window
    QTreeWidget* m_contents;
    QString m_firstPage;
};

} // namespace Orvane
