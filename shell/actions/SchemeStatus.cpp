// SPDX-License-Identifier: MIT
#include "shell/actions/SchemeStatus.h"

#include "hostkit/common/HostNotifications.h"
#include "hostkit/schemes/LayerSchemes.h"
#include "mapkit/common/Guard.h"
#include "mapkit/document/MapDocument.h"
#include "messages/NameInText.h"
#include "shell/map/MapSession.h"

#include <QLocale>

namespace Orvane {

namespace {

constexpr qsizetype LongestName = 30; // characters in the status bar

} // namespace

SchemeStatus::SchemeStatus(QWidget* parent) : QLabel(parent)
{
    setObjectName(QStringLiteral("lblScheme"));
    setTextFormat(Qt::PlainText);
}

void SchemeStatus::Use(MapSession& session)
{
    m_session = &session;
    const HostNotifications& events = session.Shell().Notifications();
    connect(&events, &HostNotifications::LayersChanged, this, &SchemeStatus::Refresh);
    connect(&events, &HostNotifications::LayerCreated, this, &SchemeStatus::Refresh);
    connect(&events, &HostNotifications::LayerDeleted, this, &SchemeStatus::Refresh);
    connect(&events, &HostNotifications::SchemesChanged, this, &SchemeStatus::Refresh);
    connect(&session, &MapSession::LayersRead, this, &SchemeStatus::Refresh);
    connect(&session, &MapSession::OthersFollowed, this, &SchemeStatus::Refresh);
    Refresh();
}

void SchemeStatus::Refresh()
{
    Guard(window(), [this] {
        const QString scheme = LayerSchemes(m_session->Document().Database()).CurrentName();
        ShowScheme(scheme, m_session->Shell().UnsavedSchemeChanges());
    });
}

void SchemeStatus::ShowScheme(const QString& scheme, qsizetype differing)
{
    const QString name = NameInText(scheme, LongestName);
    const QString whole = NameInText(scheme, 400);
    QString words;
    if (differing == 0)
        words = tr("The layers match the scheme \"%1\".").arg(whole);
    else
        words = tr("Layers that differ from the scheme \"%1\": %2").arg(whole, QLocale().toString(differing));
    setText(differing == 0 ? tr("Scheme: %1").arg(name) : tr("Scheme: %1 *").arg(name));
    setToolTip(words.toHtmlEscaped()); // a name is plain text
    setAccessibleName(words);
}

} // namespace Orvane
