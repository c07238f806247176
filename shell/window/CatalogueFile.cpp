// SPDX-License-Identifier: MIT
#include "shell/window/CatalogueFile.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace Orvane {

namespace {

QString FileFor(const QString& language)
{
    const QString program = QCoreApplication::applicationDirPath();
    for (const char* folder : {"/translations/", "/../share/orvane/translations/"}) {
        QString file = program + QLatin1String(folder) + QStringLiteral("orvane.%1.ts").arg(language);
        if (QFile::exists(file))
            return file;
    }
    return {};
}

} // namespace

QString CatalogueFile(const QStringList& languages)
{
    for (const QString& language : languages) {
        for (const QString& name : {language, language.section(QLatin1Char('-'), 0, 0)}) {
            if (name == QLatin1String("en"))
                return {};
            QString file = FileFor(name);
            if (!file.isEmpty())
                return file;
        }
    }
    return {};
}

QString CatalogueLanguage(const QString& file)
{
    return file.isEmpty() ? QString() : QFileInfo(file).completeBaseName().section(QLatin1Char('.'), 1);
}

} // namespace Orvane
