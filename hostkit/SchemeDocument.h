// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/LayerMatch.h"
#include "hostkit/SchemeColumns.h"

#include <OrvaneShellLib/Value.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

#include <array>
#include <vector>

namespace Orvane {

/// One layer scheme outside of a map: its name, and for each layer what it is known by and its values of all
/// edited columns. As a JSON text:
///
///     {"format": "orvane-scheme", "version": 1, "name": "Night", "layers": [
///     {"code": 7, "name": "Roads", "Visible": 1, "Selectable": 1, ... "OverrideMode": 0}
///     ]}
///
/// Values are those of the columns: colours as BGR numbers, scales as denominators, null for a value that is
/// not known. Further keys are ignored, so that later programs may add some.
struct SchemeDocument {
    Q_DECLARE_TR_FUNCTIONS(SchemeDocument)

public:
    /// The version of the texts that are written, and the newest that is read.
    static constexpr int Version = 1;

    struct Layer {
        LayerIdentity identity; ///< its ID is the position in the list
        std::array<Value, SchemeColumns::Count> values; ///< numbers and nulls, in the order of SchemeColumns
    };

    QString name; ///< without blanks around it, and not empty
    std::vector<Layer> layers;

    /// UTF-8, a line a layer. Raises HostError::SchemeValueUnknown for a value that is no number.
    QByteArray ToJson() const;

    /// Reads such a text whole. Raises HostError::SchemeTextDamaged with what is wrong, and
    /// HostError::SchemeTextTooNew.
    static SchemeDocument FromJson(const QByteArray& text);
};

} // namespace Orvane
