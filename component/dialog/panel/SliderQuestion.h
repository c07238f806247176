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

/// What the drop-down slider is asked to edit.
struct SliderQuestion {
    const QWidget* button = nullptr; ///< the popup hangs under it
    const IUITranslator* translator = nullptr;
    QString caption; ///< translated
    Value value; ///< Null for "various"
    qint32 defaultValue = 0; ///< where the slider stands when the value is Null
    qint32 minimum = 0;
    qint32 maximum = 0;
    bool allowVarious = false;
};

/// Asks and answers the value chosen, Null for "various"; nothing when the person abandoned it.
using AskSlider = std::function<std::optional<Value>(const SliderQuestion& question)>;

} // namespace Orvane
