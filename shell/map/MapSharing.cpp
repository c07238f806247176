// SPDX-License-Identifier: MIT
#include "shell/map/MapSharing.h"

#include "mapkit/common/Guard.h"
#include "mapkit/document/MapDocument.h"
#include "shell/map/MapSession.h"
#include "store/ILayerStore.h"
#include "store/opening/LayerStores.h"

#include <QApplication>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

namespace Orvane {

namespace {

// The map is not shown again while a dialog is open or the program is busy.
bool IsBusy()
{
    return QApplication::activeModalWidget() || QApplication::overrideCursor();
}

} // namespace

MapSharing::MapSharing(QWidget& window, ShowAgain showAgain)
    : m_window(window), m_showAgain(std::move(showAgain))
{
    connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive && m_document && !IsBusy())
            Guard(&m_window, [this] { Look(); });
    });
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
    box.setInformativeText(tr(
        "Changes made in one window are saved immediately and appear in the other when you switch to it."));
    box.setDefaultButton(QMessageBox::Open);
    return box.exec() == QMessageBox::Open;
}

void MapSharing::Use(MapSession& session)
{
    m_document = &session.Document();
    m_version = m_document->Database().ForeignChanges();
}

void MapSharing::Look()
{
    const qint64 now = m_document->Database().ForeignChanges();
    if (now != m_version && m_showAgain())
        m_version = now;
}

} // namespace Orvane
