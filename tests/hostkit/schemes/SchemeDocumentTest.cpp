// SPDX-License-Identifier: MIT
#include "hostkit/schemes/SchemeDocument.h"

#include "hostkit/HostKitTest.h"
#include "hostkit/common/HostErrors.h"
#include "support/ProcessorTime.h"

#include <QBuffer>
#include <QJsonDocument>
#include <QJsonObject>

namespace Orvane::Testing {
namespace {

SchemeDocument::Layer SomeLayer(const QString& name, std::optional<double> code)
{
    SchemeDocument::Layer layer;
    layer.identity = {0, code, name};
    for (int column = 0; column < int(SchemeColumns::Count); ++column)
        layer.values.at(std::size_t(column))
            = SchemeColumns::All.at(std::size_t(column)).kind == ColumnKind::Real ? Value(column + 0.25)
                                                                                  : Value(qint32(column));
    return layer;
}

SchemeDocument SomeScheme()
{
    SchemeDocument scheme;
    scheme.name = QStringLiteral("Night");
    scheme.layers
        = {SomeLayer(QStringLiteral("Roads"), 7), SomeLayer(QStringLiteral("Rivers"), std::nullopt)};
    return scheme;
}

int ErrorIn(const QByteArray& text)
{
    return ErrorOf([&] { SchemeDocument::FromJson(text); });
}

// The text of a good scheme with one piece of it replaced.
QByteArray With(const QByteArray& piece, const QByteArray& other)
{
    QByteArray text = SomeScheme().ToJson();
    EXPECT_TRUE(text.contains(piece)) << piece.constData();
    return text.replace(piece, other);
}

TEST(SchemeDocument, ComesBackAsItWas)
{
    const SchemeDocument scheme = SomeScheme();
    const SchemeDocument read = SchemeDocument::FromJson(scheme.ToJson());
    EXPECT_EQ(read.name, scheme.name);
    ASSERT_EQ(read.layers.size(), 2u);
    EXPECT_EQ(read.layers[0].identity.code, 7);
    EXPECT_EQ(read.layers[0].identity.name, QStringLiteral("Roads"));
    EXPECT_EQ(read.layers[1].identity.code, std::nullopt);
    EXPECT_EQ(read.layers[1].identity.id, 1);
    for (int column = 0; column < int(SchemeColumns::Count); ++column) {
        const auto at = std::size_t(column);
        EXPECT_TRUE(read.layers[0].values[at].IsIdenticalTo(scheme.layers[0].values[at]))
            << SchemeColumns::All.at(at).name;
    }
}

std::optional<SchemeDocument> Lines(QByteArray text)
{
    QBuffer buffer(&text);
    buffer.open(QIODevice::ReadOnly);
    return SchemeDocument::FromLines(buffer);
}

TEST(SchemeDocument, IsTheSameWhenItIsReadLineByLine)
{
    const std::optional<SchemeDocument> read = Lines(SomeScheme().ToJson());
    ASSERT_TRUE(read);
    EXPECT_EQ(read->ToJson(), SomeScheme().ToJson());
    EXPECT_FALSE(Lines("{\"format\":\n\"orvane-scheme\"}")) << "not one line per layer";
}

TEST(SchemeDocument, CutAnywhereIsNeverReadLineByLine)
{
    const QByteArray text = SomeScheme().ToJson();
    for (qsizetype length = 0; length < text.size() - 1; ++length) {
        std::optional<SchemeDocument> read;
        const int error = ErrorOf([&] { read = Lines(text.left(length)); });
        EXPECT_TRUE(error != 0 || !read) << length;
    }
    EXPECT_EQ(ErrorOf([&] { Lines(text + "more"); }), int(HostError::SchemeTextDamaged));
}

TEST(SchemeDocument, IsOneJsonObjectWithAFormatAndAVersionAndALineALayer)
{
    const QByteArray text = SomeScheme().ToJson();
    const QJsonObject object = QJsonDocument::fromJson(text).object();
    EXPECT_EQ(object.value("format").toString(), QStringLiteral("orvane-scheme"));
    EXPECT_EQ(object.value("version").toInt(), 1);
    EXPECT_EQ(text.count('\n'), 4);
}

TEST(SchemeDocument, KeepsNullsAsNulls)
{
    SchemeDocument scheme = SomeScheme();
    scheme.layers[0].values[3] = Value::Null();
    EXPECT_TRUE(SchemeDocument::FromJson(scheme.ToJson()).layers[0].values[3].IsNull());
}

TEST(SchemeDocument, KeepsAnyName)
{
    const QStringList names{
        QStringLiteral("O'Neill's \"best\" \\ scheme"), QString::fromUtf8("🗺 карта"),
        QString::fromUtf8("שלום"), QStringLiteral("a\nb\tc"), QString(10000, u'x')};
    for (const QString& name : names) {
        SchemeDocument scheme = SomeScheme();
        scheme.name = name;
        scheme.layers[0].identity.name = name;
        const SchemeDocument read = SchemeDocument::FromJson(scheme.ToJson());
        EXPECT_EQ(read.name, name);
        EXPECT_EQ(read.layers[0].identity.name, name);
    }
}

TEST(SchemeDocument, RefusesToWriteATextWhereANumberBelongs)
{
    SchemeDocument scheme = SomeScheme();
    scheme.layers[1].values[14] = QStringLiteral("high");
    EXPECT_EQ(ErrorOf([&] { scheme.ToJson(); }), int(HostError::SchemeValueUnknown));
    const QString description = DescriptionOf([&] { scheme.ToJson(); });
    EXPECT_TRUE(description.contains(QStringLiteral("Rivers"))) << qPrintable(description);
    EXPECT_TRUE(description.contains(QStringLiteral("Priority"))) << qPrintable(description);
}

TEST(SchemeDocument, IgnoresKeysThatItDoesNotKnow)
{
    const SchemeDocument read
        = SchemeDocument::FromJson(With("\"version\": 1", "\"version\": 1, \"more\": [1]"));
    EXPECT_EQ(read.layers.size(), 2u);
}

TEST(SchemeDocument, AMissingKeySaysNothingAboutItsColumn)
{
    const SchemeDocument read = SchemeDocument::FromJson(With("\"Color\":6,", ""));
    EXPECT_TRUE(read.layers[0].values.at(6).IsEmpty());
    EXPECT_FALSE(read.ToJson().contains("\"Color\":"));
}

TEST(SchemeDocument, TakesTrueAndFalseForFlags)
{
    const SchemeDocument read = SchemeDocument::FromJson(With("\"Visible\":0", "\"Visible\":true"));
    EXPECT_THAT(read.layers[0].values[0], IsNumber(1));
}

TEST(SchemeDocument, TrimsTheSchemesName)
{
    EXPECT_EQ(SchemeDocument::FromJson(With("\"Night\"", "\"  Night\\n\"")).name, QStringLiteral("Night"));
}

TEST(SchemeDocument, OfANewerVersionIsRefusedAsSuch)
{
    EXPECT_EQ(ErrorIn(With("\"version\": 1", "\"version\": 3")), int(HostError::SchemeTextTooNew));
}

TEST(SchemeDocument, OfAnotherKindOrWithoutAVersionIsRefused)
{
    const int damaged = int(HostError::SchemeTextDamaged);
    for (const char* text :
         {"", "no json", "[]", "{}", "null", R"({"type":"FeatureCollection","features":[]})",
          R"({"format":"orvane-scheme"})", R"({"format":"orvane-scheme","version":"1"})",
          R"({"format":"orvane-scheme","version":0})", R"({"format":"orvane-scheme","version":0.5})",
          R"({"format":"orvane-scheme","version":1})", R"({"format":"orvane-scheme","version":1,"name":" "})",
          R"({"format":"orvane-scheme","version":1,"name":"A"})",
          R"({"format":"orvane-scheme","version":1,"name":"A","layers":{}})",
          R"({"format":"orvane-scheme","version":1,"name":"A","layers":[7]})"})
        EXPECT_EQ(ErrorIn(text), damaged) << text;
}

TEST(SchemeDocument, WithABadValueIsRefusedAndNamesLayerAndKey)
{
    const int damaged = int(HostError::SchemeTextDamaged);
    for (const char* bad : {"\"black\"", "1.5", "1e300", "5000000000", "[1]", "{}"})
        EXPECT_EQ(ErrorIn(With("\"Color\":6", QByteArray("\"Color\":") + bad)), damaged) << bad;
    EXPECT_EQ(ErrorIn(With("\"MinVisScale\":12.25", "\"MinVisScale\":1e999")), damaged);
    EXPECT_EQ(ErrorIn(With("\"code\":7", "\"code\":\"7\"")), damaged);
    EXPECT_EQ(ErrorIn(With("\"name\":\"Rivers\"", "\"name\":5")), damaged);
    const QString description
        = DescriptionOf([] { SchemeDocument::FromJson(With("\"Color\":6", "\"Color\":\"x\"")); });
    EXPECT_TRUE(description.contains(QStringLiteral("1"))) << qPrintable(description);
    EXPECT_TRUE(description.contains(QStringLiteral("Color"))) << qPrintable(description);
}

TEST(SchemeDocument, CutAnywhereIsRefusedAndNeverHalfRead)
{
    const ProcessorTime time(std::chrono::seconds(60));
    const QByteArray text = SomeScheme().ToJson();
    for (qsizetype length = 0; length < text.size() - 2; ++length)
        EXPECT_EQ(ErrorIn(text.left(length)), int(HostError::SchemeTextDamaged)) << length;
}

TEST(SchemeDocument, NestedWithoutEndIsRefused)
{
    const ProcessorTime time(std::chrono::seconds(60));
    EXPECT_EQ(ErrorIn(QByteArray(200000, '[')), int(HostError::SchemeTextDamaged));
    EXPECT_EQ(ErrorIn(QByteArray("{\"a\":").repeated(50000)), int(HostError::SchemeTextDamaged));
}

TEST(SchemeDocument, WithEachByteReplacedIsReadOrRefusedWithoutHarm)
{
    const ProcessorTime time(std::chrono::seconds(60));
    const QByteArray text = SomeScheme().ToJson();
    for (qsizetype place = 0; place < text.size(); ++place) {
        for (const char byte : {'\0', '"', '{', ']', '-', '\xff'}) {
            QByteArray damaged = text;
            damaged[int(place)] = byte;
            const int error = ErrorIn(damaged);
            EXPECT_TRUE(
                error == 0 || error == int(HostError::SchemeTextDamaged)
                || error == int(HostError::SchemeTextTooNew))
                << place;
        }
    }
}

} // namespace
} // namespace Orvane::Testing
