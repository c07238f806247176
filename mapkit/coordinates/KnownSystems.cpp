// SPDX-License-Identifier: MIT
#include "mapkit/coordinates/KnownSystems.h"

#include "mapkit/common/GdalErrors.h"

#include <algorithm>
#include <array>
#include <memory>
#include <ogr_srs_api.h>

namespace Orvane {

namespace {

// Others describe the moon and planets, or repeat these.
constexpr std::array Authorities = {"EPSG", "ESRI"};

struct ListFreer {
    void operator()(OSRCRSInfo** list) const { OSRDestroyCRSInfoList(list); }
};

bool IsForMaps(const OSRCRSInfo& info)
{
    return !info.bDeprecated
        && (info.eType == OSR_CRS_TYPE_GEOGRAPHIC_2D || info.eType == OSR_CRS_TYPE_PROJECTED);
}

KnownSystem SystemIn(const OSRCRSInfo& info)
{
    KnownSystem system;
    system.code = QString::fromUtf8(info.pszAuthName) + QLatin1Char(':') + QString::fromUtf8(info.pszCode);
    system.name = QString::fromUtf8(info.pszName);
    system.areaName = QString::fromUtf8(info.pszAreaName);
    const QString all = system.name + QLatin1Char(' ') + system.code + QLatin1Char(' ') + system.areaName;
    system.searchText = SearchForm(all);
    return system;
}

} // namespace

QString SearchForm(const QString& text)
{
    QString plain;
    plain.reserve(text.size());
    const QString decomposed = text.normalized(QString::NormalizationForm_KD);
    for (const QChar character : decomposed) {
        if (!character.isMark())
            plain += character.toCaseFolded();
    }
    return plain;
}

std::vector<KnownSystem> ReadKnownSystems()
{
    const GdalErrors quiet;
    std::vector<KnownSystem> systems;
    for (const char* authority : Authorities) {
        int count = 0;
        const std::unique_ptr<OSRCRSInfo*, ListFreer> list(
            OSRGetCRSInfoListFromDatabase(authority, nullptr, &count));
        systems.reserve(systems.size() + size_t(count));
        for (int i = 0; i < count; ++i) {
            if (IsForMaps(*list.get()[i]))
                systems.push_back(SystemIn(*list.get()[i]));
        }
    }
    std::stable_sort(systems.begin(), systems.end(), [](const KnownSystem& a, const KnownSystem& b) {
        return a.name < b.name;
    });
    return systems;
}

} // namespace Orvane
