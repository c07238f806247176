// SPDX-License-Identifier: MIT
#include "qgis/plugin/QgisTexts.h"

#include "hostkit/HostKitTexts.h"

#include <QCoreApplication>
#include <QTranslator>

#include <algorithm>

namespace Orvane {

namespace {

const QString OwnName = QStringLiteral("OrvaneHostKitTexts");

QList<QTranslator*> TranslatorsOfQgis()
{
    QList<QTranslator*> found = qApp->findChildren<QTranslator*>(QString(), Qt::FindDirectChildrenOnly);
    found.erase(
        std::remove_if(
            found.begin(), found.end(), [](const QTranslator* one) { return one->objectName() == OwnName; }),
        found.end());
    return found;
}

} // namespace

// The translator that was installed last is asked first.
void QgisTexts::Install(const QLocale& locale, const QString& folder)
{
    if (HostKitTexts::Install(locale, folder).isEmpty())
        return;
    for (QTranslator* translator : TranslatorsOfQgis()) {
        if (QCoreApplication::removeTranslator(translator))
            QCoreApplication::installTranslator(translator);
    }
}

void QgisTexts::Remove()
{
    delete qApp->findChild<QTranslator*>(OwnName, Qt::FindDirectChildrenOnly);
}

} // namespace Orvane
