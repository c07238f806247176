// SPDX-License-Identifier: MIT
#pragma once

#include "shell/help/GuideHistory.h"

#include <QTextBrowser>

#include <vector>

namespace Orvane {

/// The number of the RunTimeError for a guide that cannot be read.
inline constexpr int GuideUnreadable = 10401;

/// Shows one page of the guide, a Markdown file with pictures, and scrolls to its sections (GuidePlaces.h).
/// Links to sections and to other pages are followed here, others by the desktop.
class GuideBrowser : public QTextBrowser
{
    Q_OBJECT
public:
    explicit GuideBrowser(QWidget* parent = nullptr);

    /// Shows the page in that file from its beginning. Raises if it cannot be read.
    void ShowPage(const QString& path);
    /// Scrolls to that section of the page; to the beginning if it has none of that name.
    void ShowSection(const QString& section);

    /// Shows that section of that page, from which Step leads back. Raises as ShowPage does.
    void Visit(const QString& page, const QString& section);
    /// Shows the place that was visited that many steps before (-1) or after (1), as it was left; does
    /// nothing if there is none. Raises as ShowPage does.
    void Step(int steps);
    const GuideHistory& History() const { return m_history; }

    struct Heading {
        QString text;
        int level = 1;
    };
    /// The headings of the page, in their order.
    std::vector<Heading> Headings() const;

signals:
    /// Another page is shown.
    void PageChanged();
    /// Another place is the present one of the history.
    void Visited();

protected:
    /// A picture that is wider than a page is made smaller.
    QVariant loadResource(int type, const QUrl& name) override;
    /// The side buttons of the mouse go back and forward.
    void mousePressEvent(QMouseEvent* event) override;

private:
    void Open(const QString& page);
    void Follow(const QUrl& link);
    void ShapeHeadings();
    void ShapeTables();

    GuideHistory m_history;
};

} // namespace Orvane
