// SPDX-License-Identifier: MIT
#include "store/sqlite/engine/SqliteStatement.h"

#include "store/sqlite/StoreTest.h"

#include <limits>

namespace Orvane::Testing {

namespace {

/// Values that are written to a column and read back.
class StoredValues : public StoreTest
{
protected:
    StoredValues() { AddLayer(*m_database, 1, QStringLiteral("Layer")); }

    Value Stored(const char* column, const Value& value)
    {
        const auto layer = SeekLayer(*m_database, 1);
        layer->Edit();
        layer->SetField(column, value);
        layer->Update();
        return SeekLayer(*m_database, 1)->Field(column);
    }

    /// What is read after another program has stored a number.
    Value Read(const char* column, const QString& literal)
    {
        m_database->Execute(QStringLiteral("UPDATE Layers SET %1 = %2").arg(QLatin1String(column), literal));
        return SeekLayer(*m_database, 1)->Field(column);
    }

    const std::unique_ptr<SqliteLayerDatabase> m_database = SqliteLayerDatabase::CreateInMemory();
};

void ExpectInt32(const Value& value, qint32 expected)
{
    ASSERT_EQ(value.Kind(), ValueKind::Int32);
    EXPECT_EQ(*value.Get<qint32>(), expected);
}

void ExpectDouble(const Value& value, double expected)
{
    ASSERT_EQ(value.Kind(), ValueKind::Double);
    EXPECT_EQ(*value.Get<double>(), expected);
}

} // namespace

TEST_F(StoredValues, ABooleanIsStoredAsOneOrZero)
{
    ExpectInt32(Stored("Visible", true), 1);
    ExpectInt32(Stored("Visible", false), 0);
}

TEST_F(StoredValues, IntegersComeBackAsIntegersOf32Bits)
{
    using Limits = std::numeric_limits<qint32>;
    for (const qint32 number : {0, 1, -1, -3, Limits::max(), Limits::min()})
        ExpectInt32(Stored("Priority", number), number);
    ExpectInt32(Stored("LineThickness", qint16(-12)), -12);
}

TEST_F(StoredValues, FloatingNumbersComeBackAsDouble)
{
    ExpectDouble(Stored("MinVisScale", 2500.5), 2500.5);
    ExpectDouble(Stored("MaxVisScale", 2500), 2500);
    ExpectDouble(Stored("MinVisScale", 0.1f), double(0.1f));
    ExpectDouble(Stored("MinVisScale", 1e300), 1e300);
}

TEST_F(StoredValues, AWholeNumberInAnIntegerColumnIsAnIntegerHoweverItCame)
{
    ExpectInt32(Stored("Code", 12.0), 12);
    ExpectDouble(Stored("Code", 12.5), 12.5);
}

TEST_F(StoredValues, AnUnsignedColourGivesTheSignedNumberOfTheSameBits)
{
    for (const char* column : {"Color", "FillForeColor", "FillBackColor"}) {
        ExpectInt32(Read(column, QStringLiteral("4294967295")), -1);
        ExpectInt32(Read(column, QStringLiteral("4278190335")), qint32(0xFF0000FFu));
        ExpectInt32(Read(column, QStringLiteral("2147483648")), std::numeric_limits<qint32>::min());
        ExpectInt32(Read(column, QStringLiteral("-16776961")), qint32(0xFF0000FFu));
    }
}

TEST_F(StoredValues, ANumberBeyond32BitsIsADouble)
{
    ExpectDouble(Read("Color", QStringLiteral("4294967296")), 4294967296.0);
    ExpectDouble(Read("Priority", QStringLiteral("4294967295")), 4294967295.0);
    ExpectDouble(Read("Priority", QStringLiteral("-9007199254740992")), -9007199254740992.0);
}

TEST_F(StoredValues, NullComesBackAsNull)
{
    EXPECT_TRUE(Stored("Color", Value::Null()).IsNull());
    EXPECT_TRUE(Stored("Name", Value::Null()).IsNull());
    EXPECT_TRUE(Stored("MinVisScale", Value::Null()).IsNull());
}

TEST_F(StoredValues, TextsComeBackToTheLetter)
{
    const QString quotes = QStringLiteral("King's \"Road\" ''; DROP TABLE Layers; --");
    const QString emoji
        = QStringLiteral("\U0001F30D\U0001F468\u200D\U0001F469\u200D\U0001F467 \u5730\u56F3 \u00E4");
    const QString null = QStringLiteral("before") + QChar(u'\0') + QStringLiteral("after");
    for (const QString& text : {QString(QLatin1String("")), QStringLiteral(" "), quotes, emoji, null})
        EXPECT_EQ(ToText(Stored("Name", text)), text);
}

TEST_F(StoredValues, ALongNameComesBackWhole)
{
    const QString name = QString(10000, QChar(u'x')) + QStringLiteral("'\U0001F30D");
    EXPECT_EQ(ToText(Stored("Name", name)), name);
}

TEST_F(StoredValues, AnEmptyTextIsNotNull)
{
    const Value name = Stored("Name", QString());
    ASSERT_TRUE(name.IsText());
    EXPECT_TRUE(ToText(name).isEmpty());
}

TEST_F(StoredValues, BytesAreReadAsText)
{
    EXPECT_EQ(ToText(Read("Name", QStringLiteral("x'526f616473'"))), QStringLiteral("Roads"));
}

} // namespace Orvane::Testing
