// SPDX-License-Identifier: MIT
#pragma once

#include "hosts/FailingClient.h"
#include "sweep/SweepCommand.h"
#include "sweep/SweepHost.h"

#include <QObject>
#include <QStringList>

#include <memory>

class QTreeView;

namespace Orvane {
class StyleEditorLib;
class IStyleEditorLibrary;
} // namespace Orvane

namespace Orvane::Testing {

/// A user of the layer control, which is open on the map of the folder, in a host that may fail. Message
/// boxes are closed at once, and kept until Finish. A control that cannot be used raises.
class DialogUser final : public QObject
{
public:
    explicit DialogUser(const SweepBench& bench);
    ~DialogUser() override;
    Q_DISABLE_COPY_MOVE(DialogUser)

    void ClickTab(int tab);
    /// Clicks a node of the list that is shown.
    void ClickNode(const QString& text);
    void Click(const char* control);
    void DoubleClick(const char* control);
    /// Gives the current node another name.
    void Rename(const QString& name);
    /// Waits until the dialog has nothing more to do, and raises what message boxes said.
    void Finish();

    /// The open map.
    ILayerStore& Store() { return *m_host.store; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget& Form() const;
    QWidget& Find(const char* name) const;
    QTreeView& ShownList() const;
    IStyleEditorLibrary& Library() const;

    SweepHost m_host;
    FailingClient m_client;
    HostFault& m_fault;
    std::unique_ptr<StyleEditorLib> m_library;
    QStringList m_told;
};

} // namespace Orvane::Testing
