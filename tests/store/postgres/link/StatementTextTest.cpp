// SPDX-License-Identifier: MIT
#include "store/postgres/link/StatementText.h"

#include "store/shared/StoreErrors.h"
#include "support/Errors.h"

#include <gtest/gtest.h>

namespace Orvane::Testing {

namespace {

StatementText Read(const char* sql)
{
    return StatementText::Of(QString::fromUtf8(sql), StoreErrors(QStringLiteral("map")));
}

bool IsRefused(const char* sql)
{
    return ErrorOf([&] { Read(sql); }) == int(ErrorNumber::DatabaseFailure);
}

} // namespace

TEST(StatementText, ParametersAreWrittenAsTheServerReadsThem)
{
    const StatementText text = Read("UPDATE Layers SET Name = ?2, Code = ?1 WHERE LayerID = ?1");
    EXPECT_EQ(text.text, "UPDATE Layers SET Name = $2, Code = $1 WHERE LayerID = $1");
    EXPECT_EQ(text.parameters, 2);
}

TEST(StatementText, ATextMayHaveManyParameters)
{
    EXPECT_EQ(Read("SELECT ?12, ?1").text, "SELECT $12, $1");
    EXPECT_EQ(Read("SELECT ?12, ?1").parameters, 12);
    EXPECT_GT(Read("SELECT ?99999999999999999999").parameters, 65535);
}

TEST(StatementText, WhatOnlyStandsInTextsNamesAndCommentsStays)
{
    for (const char* sql :
         {"SELECT '?1', 'it''s ?1; '", "SELECT \"?1\"\"?2\" FROM t", "SELECT 1 -- ?1;\n + 2",
          "SELECT /* ?1; /* ?2 */ ; */ 1", "SELECT $$ ?1; $$", "SELECT $a$ ?1 $b$ ?2; $a$",
          "SELECT E'\\' ?1;'", "SELECT a ? 'b'"}) {
        EXPECT_EQ(Read(sql).text, QByteArray(sql));
        EXPECT_EQ(Read(sql).parameters, 0) << sql;
    }
}

TEST(StatementText, ParametersBehindATextAreFound)
{
    EXPECT_EQ(Read("SELECT 'a''b' || ?1 || \"c\" || ?2").parameters, 2);
    EXPECT_EQ(Read("SELECT E'\\'' || ?1").parameters, 1);
    EXPECT_EQ(Read("SELECT $$x$$ || ?1").parameters, 1);
    EXPECT_EQ(Read("SELECT '\\' || ?1").parameters, 1);
}

TEST(StatementText, OneStatementMayEndWithASemicolonAndAComment)
{
    EXPECT_EQ(Read("SELECT 1;").text, "SELECT 1;");
    EXPECT_EQ(Read(" SELECT 1 ; -- that is all").parameters, 0);
}

TEST(StatementText, AnythingButOneStatementIsRefused)
{
    for (const char* sql :
         {"", "   ", ";", "-- nothing", "/* nothing", "SELECT 1; DELETE FROM Layers", "SELECT 1;;SELECT 2",
          "SELECT '1'; 'x'"})
        EXPECT_TRUE(IsRefused(sql)) << sql;
}

TEST(StatementText, StatementsOfTransactionsAreRefused)
{
    for (const char* sql :
         {"BEGIN", "begin work", "/* x */ COMMIT", "ROLLBACK TO a", "SAVEPOINT a", "END", "ABORT",
          "START TRANSACTION", "PREPARE TRANSACTION 'x'", "COPY Layers TO STDOUT"})
        EXPECT_TRUE(IsRefused(sql)) << sql;
}

TEST(StatementText, TellsQueriesFromChanges)
{
    EXPECT_TRUE(Read("SELECT * FROM Layers").reads);
    EXPECT_TRUE(Read(" select 'INSERT'").reads);
    EXPECT_TRUE(Read("WITH a AS (SELECT 1) SELECT * FROM a").reads);
    EXPECT_TRUE(Read("VALUES (1)").reads);
    EXPECT_FALSE(Read("WITH a AS (DELETE FROM Layers RETURNING 1) SELECT * FROM a").reads);
    EXPECT_FALSE(Read("SELECT * INTO Copies FROM Layers").reads);
    EXPECT_FALSE(Read("SELECT * FROM Layers FOR UPDATE").reads);
    EXPECT_FALSE(Read("DELETE FROM Layers").reads);
}

TEST(StatementText, TellsWhatChangesTables)
{
    EXPECT_TRUE(Read("create table Notes (ID integer)").changesTables);
    EXPECT_TRUE(Read("ALTER TABLE Notes ADD COLUMN Text text").changesTables);
    EXPECT_TRUE(Read("DROP TABLE Notes").changesTables);
    EXPECT_FALSE(Read("INSERT INTO Notes VALUES ('DROP')").changesTables);
}

TEST(StatementText, AnyBytesAreReadToTheirEnd)
{
    for (const char* sql :
         {"SELECT 'open", "SELECT \"open", "SELECT $$open", "SELECT $x$open$$", "SELECT E'\\",
          "SELECT /* /* */", "SELECT $", "SELECT ?", "SELECT $1$"})
        EXPECT_EQ(Read(sql).text, QByteArray(sql));
}

} // namespace Orvane::Testing
