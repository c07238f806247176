// SPDX-License-Identifier: MIT
#pragma once

#include "store/Changeset.h"

#include <QString>

#include <map>
#include <string>
#include <utility>
#include <vector>

struct sqlite3;

namespace Orvane::Testing {

/// The rows of all tables with a key, by table and key; each value is coded as changesets code it.
using PaperRows = std::map<std::pair<std::string, std::string>, std::vector<std::string>>;

/// Reads the rows of a layer database file with SQLite alone, and carries out changesets on them.
class ChangesOnPaper
{
public:
    explicit ChangesOnPaper(const QString& path);
    ~ChangesOnPaper();
    ChangesOnPaper(const ChangesOnPaper&) = delete;
    ChangesOnPaper& operator=(const ChangesOnPaper&) = delete;

    /// What the file holds now. tables: with the number of columns at their beginning that are the key.
    PaperRows Read(const std::vector<std::pair<std::string, int>>& tables) const;

    /// These rows after the changes. Expects that each row is changed once, that it is as its change says,
    /// and that the change alters it.
    static PaperRows After(PaperRows rows, const Changeset& changes);

private:
    void ReadTable(const std::string& table, int keys, PaperRows& rows) const;

    sqlite3* m_handle = nullptr;
};

} // namespace Orvane::Testing
