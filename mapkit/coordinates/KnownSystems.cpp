// SPDX-License-Identifier: MIT
#include "mapkit/coordinates/KnownSystems.h"

#include <algorithm>
#include <array>
#include <memory>
#include <proj.h>

namespace Orvane {

namespace {

constexpr std::array Authorities = {"EPSG", "ESRI"}; // others repeat these, or describe planets

struct ContextFreer {
    void operator()(PJ_CONTEXT* context) const { proj_context_destroy(context); }
};

struct ListFreer {
    void operator()(PROJ_CRS_INFO** list) const { proj_crs_info_list_destroy(list); }
};

bool IsListed(const PROJ_CRS_INFO& info)
{
    const bool isOnEarth = !info.celestial_body_name || qstrcmp(info.celestial_body_name, "Earth") == 0;
    return isOnEarth && !info.deprecated
        && (info.type == PJ_TYPE_GEOGRAPHIC_2D_CRS || info.type == PJ_TYPE_PROJECTED_CRS);
}

KnownSystem SystemIn(const PROJ_CRS_INFO& info)
{
    KnownSystem system;
    system.code = QString::fromUtf8(info.auth_name) + QLatin1Char(':') + QString::fromUtf8(info.code);
    system.name = QString::fromUtf8(info.name);
    system.areaName = QString::fromUtf8(info.area_name);
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
    const std::unique_ptr<PJ_CONTEXT, ContextFreer> context(proj_context_create());
    std::vector<KnownSystem> systems;
    for (const char* authority : Authorities) {
        int count = 0;
        const std::unique_ptr<PROJ_CRS_INFO*, ListFreer> list(
            proj_get_crs_info_list_from_database(context.get(), authority, nullptr, &count));
        systems.reserve(systems.size() + size_t(count));
        for (int i = 0; i < count; ++i) {
            if (IsListed(*list.get()[i]))
                systems.push_back(SystemIn(*list.get()[i]));
        }
    }
    std::stable_sort(systems.begin(), systems.end(), [](const KnownSystem& a, const KnownSystem& b) {
        return a.name < b.name;
    });
    return systems;
}

} // namespace Orvane
