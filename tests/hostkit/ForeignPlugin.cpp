// SPDX-License-Identifier: MIT
// A shared library that is no component.
#include <QtGlobal>

extern "C" Q_DECL_EXPORT int NothingOfInterest();

extern "C" int NothingOfInterest()
{
    return 0;
}
