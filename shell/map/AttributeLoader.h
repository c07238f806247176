// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/AttributeColumn.h"

#include <QObject>
#include <QThreadPool>

#include <memory>
#include <vector>

namespace Orvane {

class Progress;

/// Reads attributes in the background. All members are for the thread that made the object; none raises.
class AttributeLoader : public QObject
{
    Q_OBJECT
public:
    explicit AttributeLoader(QObject* parent = nullptr);
    /// Cancels the current read and waits for its end.
    ~AttributeLoader() override;

    /// Reads these, in their order; earlier requests that were not read yet are dropped.
    void Load(std::vector<AttributeRequest> requests);

signals:
    /// One of the requests was read. column: without texts and numbers if the source cannot be read.
    void Loaded(const AttributeRequest& request, std::shared_ptr<const AttributeColumn> column);

private:
    QThreadPool m_pool;
    std::shared_ptr<Progress> m_progress;
};

} // namespace Orvane
