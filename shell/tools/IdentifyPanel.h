// SPDX-License-Identifier: MIT
#pragma once

#include "shell/features/FeatureKey.h"
#include "shell/tools/IdentifyTool.h"

#include <QDockWidget>

class QLabel;
class QStackedWidget;
class QTreeWidget;
class QTreeWidgetItem;

namespace Orvane {

/// Lists identified features, each below its layer's name, with their attributes. Ctrl+C copies a value.
class IdentifyPanel : public QDockWidget
{
    Q_OBJECT
public:
    explicit IdentifyPanel(QWidget* parent);

    /// Lists these, topmost first; the first one is expanded and current, and rasters are expanded. reason:
    /// shown when there are none.
    void Show(const std::vector<IdentifiedFeature>& features, const QString& reason);
    /// Lists nothing.
    void Clear();

signals:
    /// This feature is the current one now.
    void CurrentChanged(const Orvane::FeatureKey& key);
    /// No feature is listed, or none is seen because the panel was closed.
    void NothingCurrent();

private:
    void AddFeature(const IdentifiedFeature& feature);
    void TellCurrent(const QTreeWidgetItem* item);
    void CopyValue();

    QStackedWidget* m_pages; // owned by the dock, as the next two
    QTreeWidget* m_tree;
    QLabel* m_reason;
};

} // namespace Orvane
