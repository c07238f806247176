// SPDX-License-Identifier: MIT
#include "benchmarks/Program.h"

int main(int argc, char** argv)
{
    return Orvane::Benchmarks::RunMeasurements(argc, argv);
}
