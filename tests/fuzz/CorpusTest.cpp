// SPDX-License-Identifier: MIT
// Runs the functions of the fuzzers over the inputs that are kept, among them those that once failed.
#include "fuzz/FuzzTargets.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>
#include <ostream>
#include <string>

namespace Orvane::Testing {

namespace {

struct Fuzzed {
    const char* corpus;
    int (*function)(const uint8_t*, size_t);
};

void PrintTo(const Fuzzed& fuzzed, std::ostream* stream)
{
    *stream << fuzzed.corpus;
}

class Corpus : public testing::TestWithParam<Fuzzed>
{
};

QFileInfoList InputsOf(const char* corpus)
{
    const QDir folder(QStringLiteral(ORVANE_SOURCE_DIR "/tests/fuzz/corpus/") + QLatin1String(corpus));
    return folder.entryInfoList(QDir::Files, QDir::Name);
}

} // namespace

TEST_P(Corpus, IsReadWithoutAFault)
{
    const QFileInfoList inputs = InputsOf(GetParam().corpus);
    EXPECT_FALSE(inputs.isEmpty());
    for (const QFileInfo& input : inputs) {
        SCOPED_TRACE(qPrintable(input.fileName()));
        QFile file(input.filePath());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray content = file.readAll();
        EXPECT_EQ(
            GetParam().function(reinterpret_cast<const uint8_t*>(content.data()), size_t(content.size())), 0);
    }
}

INSTANTIATE_TEST_SUITE_P(
    All, Corpus,
    testing::Values(
        Fuzzed{"copied_settings", FuzzCopiedSettings}, Fuzzed{"geometry_blob", FuzzGeometryBlob},
        Fuzzed{"map_file", FuzzMapFile}, Fuzzed{"messages", FuzzMessages}, Fuzzed{"node_key", FuzzNodeKey},
        Fuzzed{"scheme", FuzzScheme}, Fuzzed{"shown_only", FuzzShownOnly},
        Fuzzed{"style_string", FuzzStyleString}, Fuzzed{"values", FuzzValues},
        Fuzzed{"view_state", FuzzViewState}),
    [](const testing::TestParamInfo<Fuzzed>& info) { return std::string(info.param.corpus); });

#ifdef ORVANE_FUZZES_SERVERS
INSTANTIATE_TEST_SUITE_P(
    Servers, Corpus,
    testing::Values(
        Fuzzed{"array_text", FuzzArrayText}, Fuzzed{"row_text", FuzzRowText},
        Fuzzed{"server_place", FuzzServerPlace}, Fuzzed{"statement_text", FuzzStatementText}),
    [](const testing::TestParamInfo<Fuzzed>& info) { return std::string(info.param.corpus); });
#endif

} // namespace Orvane::Testing
