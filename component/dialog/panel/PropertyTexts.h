// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/panel/PropertyEditor.h"

#include <OrvaneShellLib/Value.h>

#include <QString>

namespace Orvane {

/// The name of the property that the control edits, as its caption says it: "Line colour".
QString PropertyName(const SlotControl& entry);

/// A value of the control's slot, as the user reads it; "various" for Null. Raises what the host's conversion
/// of scales raises.
QString PropertyText(const SlotControl& entry, const Value& value);

} // namespace Orvane
