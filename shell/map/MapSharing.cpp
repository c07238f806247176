// SPDX-License-Identifier: MIT
#include "shell/map/MapSharing.h"

#include "mapkit/common/Guard.h"
#include "mapkit/document/MapDocument.h"
#include "shell/map/MapSession.h"
#include "store/ILayerStore.h"
#include "store/opening/LayerStores.h"

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
    const auto look = [this] {
        if (m_document && m_window.isVisible() && !IsBusy())
            Guard(&m_window, [this] { Look(); });
    };
    connect(&m_lookAgain, &QTimer::timeout, this, look);
    connect(qApp, &QGuiApplication::applicationStateChanged, this, look);
    m_lookAgain.start(LookInterval);
}

bool MapSharing::MayOpen(const QString& path)
{
    if (!LayerStores::IsInUse(path))
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
    m_document = &session.Document();
    m_version = m_document->Database().ForeignChanges();
}

// Whatever goes wrong while showing is reported once, not with each look.
void MapSharing::Look()
{
    const qint64 now = m_document->Database().ForeignChanges();
    if (std::exchange(m_version, now) != now)
        m_showAgain();
}

} // namespace Orvane
