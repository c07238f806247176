// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/AttributeColumn.h"

#include <QObject>
#include <QThreadPool>

#include <memory>
#include <vector>

namespace Orvane {

class Progress;

/// Reads attributes in the background. All members belong to the thread that made it; nothing here raises.
class AttributeLoader : public QObject
{
    Q_OBJECT
public:
    explicit AttributeLoader(QObject* parent = nullptr);
    /// Cancels what is being read and waits for it.
    ~AttributeLoader() override;

    /// Reads these, in their order; what was asked for before and is not read yet is dropped.
    void Load(std::vector<AttributeRequest> requests);

signals:
    /// One of the requests was read. column: without texts and numbers where the source cannot be read.
    void Loaded(const AttributeRequest& request, std::shared_ptr<const AttributeColumn> column);

private:
    QThreadPool m_pool;
    std::shared_ptr<Progress> m_progress;
};

} // namespace Orvane
