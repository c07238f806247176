// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/files/ReadingBound.h"

#include <QString>
#include <QtGlobal>

#include <cstddef>

namespace Orvane {

class FeatureSet;
class Progress;

/// Watches over the reading of one layer: it ends when the user cancels, when nothing is gained any more, or
/// when the features use too much memory.
///
///     FeatureWatch watch(path, features, progress);
///     while (ReadOne(features))
///         watch.Count();
class FeatureWatch
{
public:
    /// features: what is read; progress: is told how much. Both outlive this object. path: for errors.
    FeatureWatch(const QString& path, const FeatureSet& features, Progress& progress);

    /// How many features are expected.
    void Expect(qint64 count);
    /// Tells that one more was read. Raises Cancelled, and RunTimeError with SourceUnreadable.
    void Count();

private:
    void Look();

    QString m_path;
    const FeatureSet& m_features;
    Progress& m_progress;
    ReadingBound m_bound{ReadingBound::LongestWait};
    double m_mostBytes;
    double m_expected = 1;
    qint64 m_count = 0;
    size_t m_gained = 0; // features at the last look
};

} // namespace Orvane
