// SPDX-License-Identifier: MIT
#pragma once

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

    struct Heading {
        QString text;
        int level = 1;
    };
    /// The headings of the page, in their order.
    std::vector<Heading> Headings() const;

signals:
    /// Another page is shown.
    void PageChanged();

protected:
    /// A picture that is wider than a page is made smaller.
    QVariant loadResource(int type, const QUrl& name) override;

private:
    void Follow(const QUrl& link);
    void ShapeHeadings();
    void ShapeTables();
};

} // namespace Orvane
