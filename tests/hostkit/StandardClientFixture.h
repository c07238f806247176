// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/HostKitTest.h"
#include "hostkit/StandardClient.h"
#include "hostkit/StandardShellServices.h"
#include "hostkit/common/HostNotifications.h"

#include <QMessageBox>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace Orvane::Testing {

/// A standard client on the layers of HostKitTest, with settings of its own.
class StandardClientFixture : public HostKitTest
{
protected:
    StandardClientFixture() { m_client.SetSettingsFile(m_folder.filePath(QStringLiteral("settings.ini"))); }

    HostNotifications& Signals() { return m_client.Notifications(); }
    IStyleEditorClient& Host() { return m_client; }
    IManyLayers& ManyLayers() { return m_client; }
    QString PathOf(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

    static void Press(QWidget& box, QMessageBox::StandardButton button)
    {
        QTest::mouseClick(dynamic_cast<QMessageBox&>(box).button(button), Qt::LeftButton);
    }

    static QSet<qint32> LayersOf(const QSignalSpy& spy) { return spy.at(0).at(0).value<QSet<qint32>>(); }

    QTemporaryDir m_folder;
    StandardShellServices m_services;
    StandardClient m_client{Database(), m_services};
};

} // namespace Orvane::Testing
