// SPDX-License-Identifier: MIT
#include "shell/window/SharingStatus.h"

#include "shell/window/ElidedLabel.h"

#include <QHBoxLayout>
#include <QLocale>
#include <QPushButton>
#include <QStatusBar>

namespace Orvane {

namespace {

constexpr qsizetype MostUsersShown = 3; // in the status bar; the tool tip has all
constexpr qsizetype LongestUserShown = 20; // characters

QString Shortened(const QString& name)
{
    return name.size() <= LongestUserShown ? name : name.left(LongestUserShown - 1) + QChar(0x2026);
}

} // namespace

SharingStatus::SharingStatus(QStatusBar& bar)
    : QWidget(&bar), m_text(new ElidedLabel(this)), m_try(new QPushButton(tr("Try Now"), this))
{
    m_text->setObjectName(QStringLiteral("lblSharing"));
    m_try->setObjectName(QStringLiteral("cmdTryServer"));
    m_try->setToolTip(tr("Connect to the server of the map now"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_text);
    row->addWidget(m_try);
    connect(m_try, &QPushButton::clicked, this, &SharingStatus::TryAgainWanted);
    bar.addPermanentWidget(this);
    hide();
}

void SharingStatus::Show(const QStringList& users, IChangeNews::Link link)
{
    const bool isThere = link == IChangeNews::Link::Present;
    m_try->setVisible(!isThere);
    m_try->setEnabled(link == IChangeNews::Link::Lost);
    if (isThere)
        ShowUsers(users);
    else if (link == IChangeNews::Link::Lost)
        ShowText(
            tr("Connection lost, trying again"),
            tr("The server of the map cannot be reached. What is not applied stays here."));
    else
        ShowText(tr("Connecting again..."), tr("The server of the map is being contacted again."));
    setVisible(!isThere || !users.isEmpty());
}

void SharingStatus::ShowUsers(const QStringList& users)
{
    QStringList names;
    for (const QString& user : users.mid(0, MostUsersShown))
        names << Shortened(user);
    const qsizetype others = users.size() - names.size();
    const QString shown = names.join(QLatin1String(", "));
    const QString all = users.join(QLatin1String(", "));
    ShowText(
        others == 0 ? tr("Also opened by: %1").arg(shown)
                    : tr("Also opened by: %1 and %2 more").arg(shown, QLocale().toString(others)),
        tr("Others who have the map open: %1").arg(all));
}

void SharingStatus::ShowText(const QString& text, const QString& words)
{
    m_text->setText(text);
    m_text->setToolTip(words.toHtmlEscaped()); // a name is plain text
    m_text->setAccessibleName(words);
}

} // namespace Orvane
