// SPDX-License-Identifier: MIT
#include "shell/window/QtTexts.h"

#include <QLibraryInfo>
#include <QTranslator>

namespace Orvane {

bool LoadQtTexts(QTranslator& translator, const QString& language)
{
    return !language.isEmpty()
        && translator.load(
            QStringLiteral("qtbase_") + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
}

} // namespace Orvane
