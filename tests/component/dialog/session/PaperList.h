// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace Orvane::Testing::Paper {

/// A group, or a layer under a group; group 0 is the flat list.
struct Node {
    bool isGroup = false;
    qint32 groupID = 0;
    qint32 layerID = 0;

    bool operator==(const Node&) const = default;
};

/// A listed layer.
struct Entry {
    qint32 layerID = 0;
    int mode = 0; ///< 1, 2 or 4
    QString text;

    bool operator==(const Entry&) const = default;
};

/// A listed group with its layers.
struct Branch {
    qint32 groupID = 0;
    QString text;
    std::vector<Entry> entries;

    /// The mode of all entries, 0 where they differ.
    int Mode() const;
    bool operator==(const Branch&) const = default;
};

/// One of the two lists, as last read.
struct List {
    bool isStale = true;
    std::vector<Branch> branches; ///< for the flat list one without a group
    std::optional<Node> current;

    bool Holds(const Node& node) const;
    int ModeOf(const Node& node) const;
    QString TextOf(const Node& node) const;
    void SetMode(qint32 layerID, int mode);
    void SetText(qint32 layerID, const QString& text);
    /// What a find of these words leaves.
    std::vector<Branch> Found(const QStringList& words) const;
};

} // namespace Orvane::Testing::Paper
