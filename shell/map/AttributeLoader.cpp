// SPDX-License-Identifier: MIT
#include "shell/map/AttributeLoader.h"

#include "mapkit/common/Progress.h"

#include <OrvaneShellLib/RunTimeError.h>

namespace Orvane {

namespace {

// Data that can no longer be read are reported when the map is read.
AttributeColumn ReadOrNothing(const AttributeRequest& request, Progress& progress)
{
    try {
        return ReadAttribute(request, progress);
    } catch (const RunTimeError&) {
        return {};
    }
}

} // namespace

AttributeLoader::AttributeLoader(QObject* parent) : QObject(parent), m_progress(std::make_shared<Progress>())
{
    m_pool.setMaxThreadCount(1);
}

AttributeLoader::~AttributeLoader()
{
    m_progress->Cancel();
    m_pool.waitForDone();
}

void AttributeLoader::Load(std::vector<AttributeRequest> requests)
{
    m_progress->Cancel();
    m_progress = std::make_shared<Progress>();
    if (requests.empty())
        return;
    m_pool.start([this, requests = std::move(requests), progress = m_progress] {
        for (const AttributeRequest& request : requests) {
            try {
                auto column = std::make_shared<const AttributeColumn>(ReadOrNothing(request, *progress));
                progress->StopIfCancelled();
                QMetaObject::invokeMethod(
                    this,
                    [this, request, column, progress] {
                        if (!progress->IsCancelled())
                            emit Loaded(request, column);
                    },
                    Qt::QueuedConnection);
            } catch (const std::exception&) { // cancelled, or out of memory: nothing more is read
                return;
            }
        }
    });
}

} // namespace Orvane
