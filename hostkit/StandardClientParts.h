// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/LayerFactory.h"
#include "hostkit/StandardClient.h"
#include "hostkit/common/HostNotifications.h"
#include "hostkit/common/LayerNames.h"
#include "hostkit/common/SettingsStore.h"
#include "hostkit/undo/LayerSteps.h"
#include "hostkit/undo/SchemeSteps.h"
#include "hostkit/windows/EditorWindows.h"
#include "store/ILayerStore.h"

#include <QTimer>

#include <utility>

namespace Orvane {

/// What a StandardClient consists of.
struct StandardClient::Parts {
    explicit Parts(ILayerStore& database)
        : names(database), factory(database, names), steps(database, names, windows, notifications),
          schemes(database, steps, notifications)
    {
        refreshSoon.setSingleShot(true);
        QObject::connect(&refreshSoon, &QTimer::timeout, &notifications, [this] { RefreshNow(); });
        const auto changed = [this] { RefreshOtherEditors(); };
        QObject::connect(&notifications, &HostNotifications::LayersChanged, &notifications, changed);
        QObject::connect(&notifications, &HostNotifications::LayerCreated, &notifications, changed);
        QObject::connect(&notifications, &HostNotifications::LayerDeleted, &notifications, changed);
        QObject::connect(&notifications, &HostNotifications::GroupRenamed, &notifications, changed);
        QObject::connect(
            &notifications, &HostNotifications::EditorShown, &notifications,
            [this](QWidget* form) { NoteOpening(form); });
        QObject::connect(&notifications, &HostNotifications::EditorClosed, &notifications, [this] {
            closedSoon.start(0);
        });
        closedSoon.setSingleShot(true);
        QObject::connect(
            &closedSoon, &QTimer::timeout, &notifications, [this] { isOpen = !windows.Shown().empty(); });
    }

    HostNotifications notifications;
    EditorWindows windows;
    std::unique_ptr<SettingsStore> settings; // created at the first use
    LayerNames names;
    LayerFactory factory;
    LayerSteps steps;
    SchemeSteps schemes;
    QString startupFile;
    bool keepsNotes = true;
    bool appliesAtOpening = false;
    QSet<qint32> changedLayers; // since the last RedrawMap
    QTimer refreshSoon; // after the operation that changed something
    bool isOpen = false; // an editor is shown, or was until just now
    QTimer closedSoon; // an operation may close the editors and open them again

    // An editor that is alone has shown its own changes already.
    void RefreshOtherEditors()
    {
        if (windows.Shown().size() > 1)
            refreshSoon.start(0);
    }

    void NoteOpening(QWidget* form)
    {
        closedSoon.stop();
        if (form) // a host may destroy it without a word
            QObject::connect(form, &QObject::destroyed, &closedSoon, [this] { closedSoon.start(0); });
        if (!std::exchange(isOpen, true))
            steps.History().SetMark();
    }

    void RefreshNow() noexcept
    {
        try {
            windows.RefreshEditors();
        } catch (const std::exception&) { // such an editor shows nothing; using it says why
        }
    }

    SettingsStore& Settings()
    {
        if (!settings)
            settings = std::make_unique<SettingsStore>();
        return *settings;
    }
};

} // namespace Orvane
