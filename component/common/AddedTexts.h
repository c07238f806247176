// SPDX-License-Identifier: MIT
#pragma once

#include "messages/MessageCatalogue.h"

#include <QString>

#include <vector>

class QIODevice;

namespace Orvane {

/// The texts that hosts have added, by language. What is raised is described in IStyleEditorTexts.
class AddedTexts
{
public:
    /// Adds one document: all of it, or nothing.
    void Add(const QString& language, QIODevice& document);

    /// Adds every message file of the folder: all of them, or nothing.
    void AddFolder(const QString& folder);

    /// The catalogues for exactly this tag, without regard to case; the latest first.
    std::vector<MessageCatalogue> ForTag(const QString& tag) const;

    void Clear() { m_entries.clear(); }

private:
    struct Entry {
        QString tag;
        MessageCatalogue catalogue;
    };

    std::vector<Entry> m_entries; // the earliest first
};

} // namespace Orvane
