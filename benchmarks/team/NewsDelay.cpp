// SPDX-License-Identifier: MIT
#include "NewsDelay.h"

#include "store/IChangeNews.h"
#include "store/ILayerStore.h"
#include "store/opening/LayerStores.h"

#include <QEventLoop>

#include <algorithm>

namespace Orvane::Testing {

std::vector<std::chrono::microseconds> NewsDelays(const QString& place, int times)
{
    using Clock = std::chrono::steady_clock;
    const auto editor = LayerStores::Open(place);
    const auto reader = LayerStores::Open(place);
    QEventLoop loop;
    reader->News()->SetListener({[&](const ForeignChange& /*change*/) { loop.quit(); }, [] {}});
    std::vector<std::chrono::microseconds> delays;
    delays.reserve(size_t(times));
    for (int time = 0; time < times; ++time) {
        const Clock::time_point start = Clock::now();
        editor->Execute(QStringLiteral("UPDATE Layers SET Priority = ?1 WHERE LayerID = 1"), {time + 1});
        loop.exec();
        delays.push_back(std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - start));
    }
    std::sort(delays.begin(), delays.end());
    return delays;
}

} // namespace Orvane::Testing
