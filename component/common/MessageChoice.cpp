// SPDX-License-Identifier: MIT
#include "component/common/MessageChoice.h"

#include "component/common/AddedTexts.h"
#include "component/common/MessageFile.h"

#include <QFileInfo>

namespace Orvane {

namespace {

std::vector<MessageCatalogue> AddedFor(const AddedTexts& added, QString language)
{
    std::vector<MessageCatalogue> catalogues;
    for (const QString& tag : TagAndItsParents(language.replace(u'_', u'-'))) {
        const auto ofTag = added.ForTag(tag);
        catalogues.insert(catalogues.end(), ofTag.begin(), ofTag.end());
    }
    return catalogues;
}

} // namespace

std::vector<MessageCatalogue>
CataloguesFor(const QString& folder, const AddedTexts& added, const QStringList& languages)
{
    for (const QString& language : languages) {
        std::vector<MessageCatalogue> catalogues = AddedFor(added, language);
        const QString file = MessageFilePath(folder, {language});
        if (catalogues.empty() && !IsEnglish(language) && !QFileInfo(file).isFile())
            continue;
        catalogues.push_back(MessageCatalogue::FromFile(file));
        return catalogues;
    }
    return {MessageCatalogue::FromFile(MessageFilePath(folder, {}))};
}

} // namespace Orvane
