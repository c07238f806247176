// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/rows/LayerSample.h"
#include "component/styles/FillPictures.h"

#include <QCache>
#include <QObject>
#include <QSet>

#include <functional>

namespace Orvane {

/// The samples of the layers whose rows are in sight. They are read after the event that painted the rows,
/// all in one transaction, and kept until they may have changed. Nothing here raises: a layer that cannot be
/// read has no sample.
class LayerSamples : public QObject
{
    Q_OBJECT

public:
    /// Samples that are kept; more than any screen has rows.
    static constexpr int Kept = 2000;

    /// mayRead: false when the rows are no longer shown; then the host is not called.
    explicit LayerSamples(std::function<bool()> mayRead, QObject* parent = nullptr);

    /// The sample of the layer; nullptr if it was not read yet, or cannot be. Valid until the event loop
    /// runs.
    const LayerSample* Of(qint32 layerID) const;
    /// To be called for each row that is painted: reads the sample soon if it is not known.
    void Want(qint32 layerID);
    /// All samples may have changed. The old ones are shown until their rows are painted again.
    void Expire();

signals:
    /// Rows should be painted again.
    void Changed();

private:
    struct Entry {
        std::optional<LayerSample> sample;
        quint64 age = 0;
    };

    void ReadWanted();
    void Read(const QSet<qint32>& layerIDs);
    std::optional<LayerSample> ReadOne(qint32 layerID);
    MonochromeBitmap Picture(qint32 fillStyle);

    std::function<bool()> m_mayRead;
    QCache<qint32, Entry> m_entries{Kept};
    QSet<qint32> m_wanted;
    FillPictures m_pictures;
    quint64 m_age = 0;
};

} // namespace Orvane
