// SPDX-License-Identifier: MIT
// The entry of each fuzzer; ORVANE_FUZZED is the function that it calls.
#include "fuzz/FuzzTargets.h"

#include <QCoreApplication>

extern "C" int LLVMFuzzerInitialize(int* argumentCount, char*** arguments)
{
    static const QCoreApplication application(*argumentCount, *arguments);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    return Orvane::Testing::ORVANE_FUZZED(data, size);
}
