// SPDX-License-Identifier: MIT
#include "component/common/MessageChoice.h"

#include "component/common/AddedTexts.h"
#include "component/common/MessageFile.h"
#include "messages/LanguageTags.h"

#include <QFileInfo>

namespace Orvane {

namespace {

std::vector<MessageCatalogue> AddedFor(const AddedTexts& added, const QStringList& tags)
{
    std::vector<MessageCatalogue> catalogues;
    for (const QString& tag : tags) {
        const auto ofTag = added.ForTag(tag);
        catalogues.insert(catalogues.end(), ofTag.begin(), ofTag.end());
    }
    return catalogues;
}

} // namespace

std::vector<MessageCatalogue>
CataloguesFor(const QString& folder, const AddedTexts& added, const QStringList& languages)
{
    for (const QStringList& tags : LanguageTags(languages)) {
        std::vector<MessageCatalogue> catalogues = AddedFor(added, tags);
        const QString file = MessageFilePath(folder, tags);
        if (catalogues.empty() && !IsEnglish(tags.constFirst()) && !QFileInfo(file).isFile())
            continue;
        catalogues.push_back(MessageCatalogue::FromFile(file));
        return catalogues;
    }
    return {MessageCatalogue::FromFile(MessageFilePath(folder, {}))};
}

} // namespace Orvane
