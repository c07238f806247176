// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <map>
#include <set>
#include <string>
#include <vector>

class QgsMapLayer;

namespace Orvane {
class ILayerStore;
}

/// A model of what the rows of a project's layers should be: plain numbers, and the few rules by which the
/// user and QGIS change them.
namespace Orvane::Testing::Paper {

/// Columns by name; numbers are doubles. Invalid: not known.
using Row = std::map<std::string, QVariant>;

/// The columns that a dialog or QGIS may change, "Name" among them.
extern const std::vector<std::string> columns;
/// Those that symbols show.
extern const std::vector<std::string> symbolColumns;

struct Layer {
    QString id; ///< QGIS's
    Row row;
    double opacity = 1; ///< without its quick mode
    QString untouched; ///< what nobody but QGIS may change

    bool operator==(const Layer&) const = default;
};

using Layers = std::map<qint32, Layer>;

/// The modes of layers that "Show Only These" has hidden or shown, as they were before: 0, 1 or 2.
using OwnModes = std::map<qint32, double>;

/// What an operation has changed.
struct Step {
    std::map<qint32, Row> before; ///< the changed columns only
    std::map<qint32, Row> after;
    bool isOfSchemes = false; ///< changed schemes too, which are not on the paper
    OwnModes ownBefore{};
    OwnModes ownAfter{};

    bool IsEmpty() const { return before.empty() && !isOfSchemes && ownBefore == ownAfter; }
};

/// The columns in which the layers of both differ.
Step StepBetween(const Layers& before, const Layers& after);
/// True if each changed column is as the step has left it.
bool IsPresent(const std::map<qint32, Row>& state, const Layers& layers);
void Set(const std::map<qint32, Row>& state, Layers& layers);

/// The rows of the store.
Layers ReadRows(ILayerStore& store);
/// One line for each value that differs.
QStringList Differences(const Layers& expected, const Layers& actual);

/// What the layer control must never touch: classes, labels, joins, expressions, filter.
QString UntouchedOf(const QgsMapLayer& layer);

} // namespace Orvane::Testing::Paper
