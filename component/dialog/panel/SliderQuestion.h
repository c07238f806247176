// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/Value.h>

#include <QString>
#include <QtGlobal>

#include <functional>
#include <optional>

class QWidget;

namespace Orvane {

class IUITranslator;

/// What the drop-down slider edits.
struct SliderQuestion {
    const QWidget* button = nullptr; ///< the popup opens under it
    const IUITranslator* translator = nullptr;
    QString caption; ///< translated
    Value value; ///< Null for "various"
    qint32 defaultValue = 0; ///< where the slider starts if the value is Null
    qint32 minimum = 0;
    qint32 maximum = 0;
    bool allowVarious = false;
};

/// Asks and returns the chosen value, Null for "various"; nothing if the user cancelled.
using AskSlider = std::function<std::optional<Value>(const SliderQuestion& question)>;

} // namespace Orvane
