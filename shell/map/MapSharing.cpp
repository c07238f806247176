// SPDX-License-Identifier: MIT
#include "shell/map/MapSharing.h"

#include "mapkit/common/Guard.h"
#include "mapkit/document/MapDocument.h"
#include "shell/map/MapSession.h"
#include "shell/window/SharingStatus.h"
#include "store/ILayerStore.h"
#include "store/StorePlace.h"
#include "store/opening/LayerStores.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

#include <utility>

namespace Orvane {

namespace {

constexpr int LookInterval = 500; // milliseconds: changes of others are seen within a second

// A field that is open inside a list would be closed when the list is read again.
bool EditsInAList()
{
    const QWidget* field = QApplication::focusWidget();
    const QWidget* viewport = field ? field->parentWidget() : nullptr;
    return viewport && qobject_cast<const QAbstractItemView*>(viewport->parentWidget());
}

// The map is not shown again while something waits for the user, or while the program is busy.
bool IsBusy()
{
    return QApplication::activeModalWidget() || QApplication::activePopupWidget()
        || QApplication::overrideCursor() || EditsInAList();
}

} // namespace

MapSharing::MapSharing(QWidget& window, ShowAgain showAgain)
    : m_window(window), m_showAgain(std::move(showAgain))
{
    connect(&m_lookAgain, &QTimer::timeout, this, &MapSharing::LookIfFree);
    connect(qApp, &QGuiApplication::applicationStateChanged, this, &MapSharing::LookIfFree);
    m_lookAgain.start(LookInterval);
}

void MapSharing::ShowIn(QStatusBar& bar)
{
    m_status = new SharingStatus(bar);
    connect(m_status, &SharingStatus::TryAgainWanted, this, [this] {
        if (m_news)
            m_news->TryAgain();
    });
}

bool MapSharing::MayOpen(const QString& path)
{
    if (!StorePlace::IsFile(path) || !LayerStores::IsInUse(path))
        return true;
    QMessageBox box(
        QMessageBox::Question, tr("Open Map"),
        tr("The map \"%1\" is open in another window or program. Open it here too?")
            .arg(QFileInfo(path).fileName()),
        QMessageBox::Open | QMessageBox::Cancel, &m_window);
    box.setObjectName(QStringLiteral("dlgMapShared"));
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(
        tr("Changes made in one window are saved immediately and appear in the other within a second."));
    box.setDefaultButton(QMessageBox::Open);
    return box.exec() == QMessageBox::Open;
}

void MapSharing::Use(MapSession& session)
{
    m_session = &session;
    m_change = {};
    ILayerStore& store = session.Document().Database();
    m_news = store.News();
    if (m_news)
        Listen(*m_news);
    else
        m_version = store.ForeignChanges();
    ShowState();
}

// A connection that is lost at this moment is told by its state, and made again.
void MapSharing::Listen(IChangeNews& news)
{
    const auto take = [this](const ForeignChange& change) {
        Guard(&m_window, [&] { Take(change); });
        LookIfFree();
    };
    try {
        news.SetListener({take, [this] { Guard(&m_window, [this] { ShowState(); }); }});
    } catch (const RunTimeError& error) {
        if (error.Number() != int(ErrorNumber::ConnectionLost))
            throw;
    }
}

void MapSharing::LookIfFree()
{
    if (m_session && m_window.isVisible() && !IsBusy())
        Guard(&m_window, [this] { m_news ? Follow() : Look(); });
}

// Whatever goes wrong while showing is reported once, not with each look.
void MapSharing::Look()
{
    const qint64 now = m_session->Document().Database().ForeignChanges();
    if (std::exchange(m_version, now) != now)
        m_showAgain();
}

void MapSharing::Take(const ForeignChange& change)
{
    m_change.layerIDs += change.layerIDs;
    m_change.all |= change.all;
}

// As above; but a lost connection is told in the status bar, and the changes are shown when it is back.
void MapSharing::Follow()
{
    if (m_news->State() != IChangeNews::Link::Present || (!m_change.all && m_change.layerIDs.isEmpty()))
        return;
    const ForeignChange change = std::exchange(m_change, {});
    try {
        if (change.all || !m_session->FollowOthers(change.layerIDs))
            m_showAgain();
    } catch (const RunTimeError& error) {
        if (error.Number() != int(ErrorNumber::ConnectionLost))
            throw;
        m_change.all = true;
    }
}

void MapSharing::ShowState()
{
    if (!m_status)
        return;
    if (m_news)
        m_status->Show(m_news->Users(), m_news->State());
    else
        m_status->ShowNothing();
}

} // namespace Orvane
