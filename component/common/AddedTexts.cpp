// SPDX-License-Identifier: MIT
#include "component/common/AddedTexts.h"

#include "component/common/Messages.h"

#include <OrvaneShellLib/IStyleEditorTexts.h>
#include <OrvaneShellLib/RunTimeError.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <map>

namespace Orvane {

namespace {

[[noreturn]] void RefuseTexts(const QString& description)
{
    throw RunTimeError(IStyleEditorTexts::UnusableTexts, description);
}

bool IsLanguageTag(const QString& tag)
{
    static const QRegularExpression form(QStringLiteral("\\A[A-Za-z]{2,8}(-[A-Za-z0-9]{1,8})*\\z"));
    return form.match(tag).hasMatch();
}

QString LanguageTag(QString language)
{
    language.replace(u'_', u'-');
    if (!IsLanguageTag(language))
        RefuseTexts(TranslateMsg(
            "\"^1\" is no language. Languages are written as \"nl\" or \"pt-BR\", for example.", language));
    return language;
}

// shownName: the language or the file, as an error names it.
MessageCatalogue ReadTexts(QIODevice& document, const QString& shownName)
{
    if (!document.isReadable())
        RefuseTexts(TranslateMsg("The texts \"^1\" cannot be read: ^2", shownName, document.errorString()));
    MessageCatalogue catalogue = MessageCatalogue::FromDevice(document);
    if (catalogue.IsEmpty())
        RefuseTexts(TranslateMsg(
            "The texts \"^1\" cannot be used: they are larger than 8 MB, or no Qt Linguist document with "
            "finished translations.",
            shownName));
    return catalogue;
}

MessageCatalogue ReadTextFile(const QString& path)
{
    QFile file(path);
    (void)file.open(QIODevice::ReadOnly); // the reader tells why it is not open
    return ReadTexts(file, QDir::toNativeSeparators(path));
}

void KeepIfText(std::multimap<QString, QString>& files, QString language, const QString& path)
{
    language.replace(u'_', u'-');
    if (IsLanguageTag(language) && QFileInfo(path).isFile()) // a pipe would be waited for
        files.emplace(language, path);
}

// The message files of a folder by their languages.
std::multimap<QString, QString> TextFilesIn(const QDir& folder)
{
    std::multimap<QString, QString> files;
    for (const QString& name : folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        KeepIfText(files, name, folder.filePath(name + QStringLiteral("/POBEX.LRT")));
    for (const QString& name : folder.entryList({QStringLiteral("POBEX.*.ts")}, QDir::Files))
        KeepIfText(files, name.section(QLatin1Char('.'), 1, -2), folder.filePath(name));
    return files;
}

} // namespace

void AddedTexts::Add(const QString& language, QIODevice& document)
{
    const QString tag = LanguageTag(language);
    m_entries.push_back({tag, ReadTexts(document, tag)});
}

void AddedTexts::AddFolder(const QString& folder)
{
    const auto files = folder.isEmpty() ? std::multimap<QString, QString>() : TextFilesIn(QDir(folder));
    if (files.empty())
        RefuseTexts(TranslateMsg(
            "The folder \"^1\" has no texts. They are looked for as \"nl/POBEX.LRT\" and \"POBEX.nl.ts\", "
            "for example.",
            QDir::toNativeSeparators(folder)));
    std::vector<Entry> entries = m_entries;
    entries.reserve(entries.size() + files.size());
    for (const auto& [tag, path] : files)
        entries.push_back({tag, ReadTextFile(path)});
    m_entries = std::move(entries);
}

std::vector<MessageCatalogue> AddedTexts::ForTag(const QString& tag) const
{
    std::vector<MessageCatalogue> catalogues;
    catalogues.reserve(m_entries.size());
    for (const Entry& entry : m_entries) {
        if (entry.tag.compare(tag, Qt::CaseInsensitive) == 0)
            catalogues.push_back(entry.catalogue);
    }
    std::reverse(catalogues.begin(), catalogues.end());
    return catalogues;
}

} // namespace Orvane
