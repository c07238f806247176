// SPDX-License-Identifier: MIT
#include "sweep/SweepHost.h"

#include "store/opening/LayerStores.h"

namespace Orvane::Testing {

SweepHost::SweepHost(const SweepFolder& folder)
    : store(LayerStores::Open(folder.MapPath())), client(*store, services)
{
    client.SetSettingsFile(folder.PathBeside("settings.ini"));
    client.SetStartupFile(folder.PathOf("startup.orvane"));
}

} // namespace Orvane::Testing
