// SPDX-License-Identifier: MIT
#pragma once

#include "store/any/StoreMaker.h"

struct sqlite3;

namespace Orvane::Testing {

/// A second connection to a database file, made with SQLite alone: for locks it counts as another program.
class RawDatabase final : public Stranger
{
public:
    explicit RawDatabase(const QString& path);
    ~RawDatabase() override;

    void Run(const char* sql) override;
    std::string Text(const char* sql) override;
    void BeginWriting() override { Run("BEGIN IMMEDIATE"); }

private:
    sqlite3* m_handle = nullptr;
};

} // namespace Orvane::Testing
