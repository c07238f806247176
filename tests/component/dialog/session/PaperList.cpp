// SPDX-License-Identifier: MIT
#include "component/dialog/session/PaperList.h"

#include <algorithm>

namespace Orvane::Testing::Paper {

int Branch::Mode() const
{
    const auto differs = [this](const Entry& entry) { return entry.mode != entries.front().mode; };
    return entries.empty() || std::any_of(entries.begin(), entries.end(), differs) ? 0 : entries.front().mode;
}

bool List::Holds(const Node& node) const
{
    return std::any_of(branches.begin(), branches.end(), [&](const Branch& branch) {
        const auto isIt = [&](const Entry& entry) { return entry.layerID == node.layerID; };
        return branch.groupID == node.groupID
            && (node.isGroup || std::any_of(branch.entries.begin(), branch.entries.end(), isIt));
    });
}

int List::ModeOf(const Node& node) const
{
    for (const Branch& branch : branches) {
        if (branch.groupID == node.groupID && node.isGroup)
            return branch.Mode();
        for (const Entry& entry : branch.entries) {
            if (branch.groupID == node.groupID && entry.layerID == node.layerID)
                return entry.mode;
        }
    }
    return 0;
}

QString List::TextOf(const Node& node) const
{
    for (const Branch& branch : branches) {
        if (branch.groupID == node.groupID && node.isGroup)
            return branch.text;
        for (const Entry& entry : branch.entries) {
            if (branch.groupID == node.groupID && entry.layerID == node.layerID)
                return entry.text;
        }
    }
    return {};
}

void List::SetMode(qint32 layerID, int mode)
{
    for (Branch& branch : branches) {
        for (Entry& entry : branch.entries) {
            if (entry.layerID == layerID)
                entry.mode = mode;
        }
    }
}

std::vector<Branch> List::Found(const QStringList& words) const
{
    std::vector<Branch> found;
    for (const Branch& branch : branches) {
        Branch left{branch.groupID, branch.text, {}};
        for (const Entry& entry : branch.entries) {
            const bool hasAll = std::all_of(words.begin(), words.end(), [&](const QString& word) {
                return entry.text.contains(word) || branch.text.contains(word);
            });
            if (hasAll)
                left.entries.push_back(entry);
        }
        if (!left.entries.empty())
            found.push_back(std::move(left));
    }
    return found;
}

void List::SetText(qint32 layerID, const QString& text)
{
    for (Branch& branch : branches) {
        for (Entry& entry : branch.entries) {
            if (entry.layerID == layerID)
                entry.text = text;
        }
    }
}

} // namespace Orvane::Testing::Paper
