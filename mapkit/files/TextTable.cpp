// SPDX-License-Identifier: MIT
#include "mapkit/files/TextTable.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <gdal_priv.h>
#include <ogrsf_frmts.h>
#include <vector>

namespace Orvane {

namespace {

constexpr size_t BytesLookedAt = 1'000'000; // as many as GDAL looks at
constexpr size_t MostExactDigits = 15; // of a double
constexpr size_t FewestToDial = 7; // digits with the code of the country
constexpr size_t MostWholeDigits = 18; // of a whole number; GDAL cuts larger ones

std::unique_ptr<GDALDataset> OpenTable(const QString& name, const char* const* options)
{
    constexpr unsigned flags = GDAL_OF_VECTOR | GDAL_OF_READONLY;
    return std::unique_ptr<GDALDataset>(
        GDALDataset::Open(name.toUtf8().constData(), flags, nullptr, options));
}

bool IsDigit(char character)
{
    return character >= '0' && character <= '9';
}

bool IsNumber(const OGRFieldDefn& field)
{
    const OGRFieldType type = field.GetType();
    return type == OFTInteger || type == OFTInteger64 || type == OFTReal;
}

size_t DigitsAt(const char* text)
{
    return std::strspn(text, "0123456789");
}

// "+4930123456", unlike the number "+25".
bool IsTelephoneNumber(const char* text)
{
    text += std::strspn(text, " ");
    const size_t digits = text[0] == '+' ? DigitsAt(text + 1) : 0;
    return digits >= FewestToDial && text[1 + digits] == '\0';
}

// "2E3"; programs write numbers as "2.0E3" or "2e+03".
bool IsCodeWithE(const char* text)
{
    text += std::strspn(text, " ");
    const size_t digits = DigitsAt(text);
    if (digits == 0 || (text[digits] != 'E' && text[digits] != 'e'))
        return false;
    const char* behind = text + digits + 1;
    return IsDigit(*behind) && behind[DigitsAt(behind)] == '\0';
}

// Whether a number would be written otherwise than this text. isWhole: read as a whole number.
bool IsLostInNumber(const char* text, bool isWhole)
{
    if (IsTelephoneNumber(text) || IsCodeWithE(text))
        return true;
    text += std::strspn(text, " +-");
    if (text[0] == '0' && IsDigit(text[1]))
        return true;
    const size_t digits = DigitsAt(text);
    return text[digits] == '\0' && digits > (isWhole ? MostWholeDigits : MostExactDigits);
}

// The fields with numbers whose texts would be lost. texts: the same table, with all columns as text.
std::vector<int> FieldsToKeep(const OGRFeatureDefn& fields, OGRLayer& texts)
{
    std::vector<int> numbers;
    for (int i = 0; i < fields.GetFieldCount(); ++i) {
        if (IsNumber(*fields.GetFieldDefn(i)))
            numbers.push_back(i);
    }
    std::vector<int> kept;
    size_t bytes = 0;
    while (!numbers.empty() && bytes < BytesLookedAt) {
        const OGRFeatureUniquePtr row(texts.GetNextFeature());
        if (!row)
            break;
        for (int i = 0; i < row->GetFieldCount(); ++i)
            bytes += std::strlen(row->GetFieldAsString(i)) + 1;
        std::erase_if(numbers, [&](int i) {
            const bool isWhole = fields.GetFieldDefn(i)->GetType() != OFTReal;
            const bool isLost = IsLostInNumber(row->GetFieldAsString(i), isWhole);
            if (isLost)
                kept.push_back(i);
            return isLost;
        });
    }
    return kept;
}

// The driver reads each value as the type that stands here when it reads.
void KeepAsText(OGRFeatureDefn& fields, const std::vector<int>& kept)
{
#if GDAL_VERSION_NUM >= GDAL_COMPUTE_VERSION(3, 9, 0)
    const auto unsealed = fields.GetTemporaryUnsealer();
#endif
    for (const int i : kept)
        fields.GetFieldDefn(i)->SetType(OFTString);
}

} // namespace

bool IsTextTable(const QString& name)
{
    const bool isCompressed = name.endsWith(QLatin1String(".gz"), Qt::CaseInsensitive);
    const QString plain = isCompressed ? name.chopped(3) : name;
    static constexpr std::array<const char*, 4> Suffixes = {".csv", ".tsv", ".psv", ".txt"};
    return std::any_of(Suffixes.begin(), Suffixes.end(), [&](const char* suffix) {
        return plain.endsWith(QLatin1String(suffix), Qt::CaseInsensitive);
    });
}

std::unique_ptr<GDALDataset> OpenTextTable(const QString& name)
{
    const char* const withNumbers[] = {"AUTODETECT_TYPE=YES", nullptr};
    std::unique_ptr<GDALDataset> table = OpenTable(name, withNumbers);
    const std::unique_ptr<GDALDataset> texts = table ? OpenTable(name, nullptr) : nullptr;
    for (int i = 0; texts && i < std::min(table->GetLayerCount(), texts->GetLayerCount()); ++i) {
        OGRFeatureDefn& fields = *table->GetLayer(i)->GetLayerDefn();
        if (fields.GetFieldCount() == texts->GetLayer(i)->GetLayerDefn()->GetFieldCount())
            KeepAsText(fields, FieldsToKeep(fields, *texts->GetLayer(i)));
    }
    return table;
}

} // namespace Orvane
