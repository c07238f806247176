// SPDX-License-Identifier: MIT
#pragma once

namespace Orvane {

class HostNotifications;
class ILayerStore;
class IStyleEditorClient;
class SchemeSteps;
class SettingsStore;
class UndoHistory;

/// What the pages of the scheme manager use; none is owned.
struct ManagerHost {
    ILayerStore& map;
    IStyleEditorClient& client; ///< through which layers change, so that a host's overrides are called
    SchemeSteps& schemes;
    UndoHistory& history;
    HostNotifications& notifications;
    SettingsStore& settings;
    bool appliesAtOpening; ///< whether the host loads a scheme when it opens a map
};

} // namespace Orvane
