// SPDX-License-Identifier: MIT
#include "hostkit/HostKitTexts.h"

#include "hostkit/StyleEditorPlugin.h"
#include "messages/CatalogueTranslator.h"
#include "messages/LanguageTags.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace Orvane {

namespace {

struct FoundTexts {
    QString language;
    MessageCatalogue catalogue;
};

QString TranslatorName()
{
    return QStringLiteral("OrvaneHostKitTexts");
}

MessageCatalogue TextsIn(const QStringList& folders, const QString& language)
{
    for (const QString& folder : folders) {
        const QString name = QStringLiteral("orvane.%1.ts").arg(language);
        MessageCatalogue catalogue = MessageCatalogue::FromFile(QDir(folder).filePath(name));
        if (!catalogue.IsEmpty())
            return catalogue;
    }
    return {};
}

FoundTexts FindTexts(const QLocale& locale, const QString& folder)
{
    const QStringList folders = HostKitTexts::SearchFolders(folder);
    for (const QStringList& tags : LanguageTags(locale.uiLanguages())) {
        for (const QString& tag : tags) {
            MessageCatalogue catalogue = TextsIn(folders, tag);
            if (!catalogue.IsEmpty())
                return {tag, std::move(catalogue)};
        }
        if (IsEnglish(tags.constFirst()))
            break;
    }
    return {};
}

// A component is in "lib/orvane" or "lib", or beside the texts as it is built.
QStringList FoldersBeside(const QString& componentFolder)
{
    const QDir folder(componentFolder);
    QStringList folders;
    for (const char* way :
         {"../../share/orvane/translations", "../share/orvane/translations", "translations"})
        folders << QDir::cleanPath(folder.absoluteFilePath(QLatin1String(way)));
    return folders;
}

} // namespace

QStringList HostKitTexts::SearchFolders(const QString& folder)
{
    const QDir program(QCoreApplication::applicationDirPath());
    QStringList folders;
    if (!folder.isEmpty())
        folders << folder;
    folders << program.absoluteFilePath(QStringLiteral("translations"));
    folders << QDir::cleanPath(program.absoluteFilePath(QStringLiteral("../share/orvane/translations")));
    const QString loaded = StyleEditorPlugin::LoadedFile();
    if (!loaded.isEmpty())
        folders << FoldersBeside(QFileInfo(loaded).absolutePath());
    for (const QString& place : StyleEditorPlugin::SearchFolders())
        folders << FoldersBeside(place);
    folders.removeDuplicates();
    return folders;
}

QString HostKitTexts::Language(const QLocale& locale, const QString& folder)
{
    return FindTexts(locale, folder).language;
}

QString HostKitTexts::Install(const QLocale& locale, const QString& folder)
{
    QCoreApplication* application = QCoreApplication::instance();
    delete application->findChild<QTranslator*>(TranslatorName(), Qt::FindDirectChildrenOnly);
    FoundTexts found = FindTexts(locale, folder);
    if (found.language.isEmpty())
        return {};
    auto* translator = new CatalogueTranslator(std::move(found.catalogue), application);
    translator->setObjectName(TranslatorName());
    QCoreApplication::installTranslator(translator);
    return found.language;
}

} // namespace Orvane
