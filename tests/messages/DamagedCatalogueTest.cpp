// SPDX-License-Identifier: MIT
#include "messages/LinguistReader.h"
#include "messages/MessageCatalogue.h"
#include "support/LinguistFile.h"
#include "support/ProcessorTime.h"

#include <QBuffer>

#include <gtest/gtest.h>
#include <random>

namespace Orvane {

namespace {

QByteArray RealFile()
{
    return Testing::ReadFile(Testing::SourcePath("translations/POBEX.de.ts"));
}

MessageCatalogue Read(QByteArray document)
{
    QBuffer buffer(&document);
    buffer.open(QIODevice::ReadOnly);
    return MessageCatalogue::FromDevice(buffer);
}

// Small edits of the kinds that disks, transfers and editors make.
class Damager
{
public:
    QByteArray Damage(QByteArray document)
    {
        for (int edits = Number(1, 8); edits > 0; --edits)
            Edit(document);
        return document;
    }

    QByteArray Noise(int size)
    {
        QByteArray bytes(size, '\0');
        for (char& byte : bytes)
            byte = char(Number(0, 255));
        return bytes;
    }

private:
    int Number(int lowest, int highest) { return std::uniform_int_distribution(lowest, highest)(m_random); }

    void Edit(QByteArray& document)
    {
        const int size = int(document.size());
        const int place = size > 0 ? Number(0, size - 1) : 0;
        switch (Number(0, 4)) {
        case 0:
            document[place] = char(Number(0, 255));
            break;
        case 1:
            document.remove(place, Number(1, 40));
            break;
        case 2:
            document.insert(place, document.mid(Number(0, size - 1), Number(1, 200)));
            break;
        case 3:
            document.insert(place, Noise(Number(1, 20)));
            break;
        default:
            document[place] = char(document[place] ^ (1 << Number(0, 7)));
        }
    }

    std::mt19937 m_random{20260101}; // the same mutations in every run
};

} // namespace

TEST(DamagedCatalogue, AFileCutAnywhereBeforeItsEndIsEmpty)
{
    const Testing::ProcessorTime time(std::chrono::seconds(120));
    const QByteArray whole = RealFile().trimmed();
    ASSERT_FALSE(Read(whole).IsEmpty());
    const qsizetype step = whole.size() / 400;
    for (qsizetype length = 0; length < whole.size(); length += step)
        EXPECT_TRUE(Read(whole.left(length)).IsEmpty()) << "cut at " << length;
    EXPECT_TRUE(Read(whole.chopped(1)).IsEmpty());
}

TEST(DamagedCatalogue, AnyDamageGivesAnEmptyCatalogueOrAWholeOne)
{
    const Testing::ProcessorTime time(std::chrono::seconds(120));
    const QByteArray whole = RealFile();
    Damager damager;
    int refused = 0;
    for (int round = 0; round < 2500; ++round) {
        const QByteArray damaged = damager.Damage(whole);
        const MessageCatalogue catalogue = Read(damaged);
        const bool wellFormed = ReadLinguistDocument(damaged).has_value();
        EXPECT_TRUE(wellFormed || catalogue.IsEmpty()) << "round " << round;
        EXPECT_FALSE(catalogue.Translate("&Delete").isNull());
        refused += wellFormed ? 0 : 1;
    }
    EXPECT_GT(refused, 500);
    EXPECT_LT(refused, 2500);
}

TEST(DamagedCatalogue, RandomBytesAreAnEmptyCatalogue)
{
    const Testing::ProcessorTime time(std::chrono::seconds(120));
    Damager damager;
    for (int round = 0; round < 500; ++round)
        EXPECT_TRUE(Read(damager.Noise(round * 7)).IsEmpty()) << "round " << round;
}

} // namespace Orvane
