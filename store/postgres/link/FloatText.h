// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace Orvane {

/// A number as PostgreSQL reads it, exact to the last bit, also one that is infinite or none.
QByteArray FloatText(double number);

} // namespace Orvane
