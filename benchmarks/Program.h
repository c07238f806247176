// SPDX-License-Identifier: MIT
#pragma once

namespace Orvane::Benchmarks {

/// The main function of a program with measurements: measures all that is announced in it and prints the
/// figures. Returns 1 if something failed.
///
///     PROGRAM [--smoke | --million] [GOOGLE BENCHMARK ARGUMENTS]
///
/// --smoke: only the smallest sizes, once; the figures mean nothing, and it fails too if a job has no bare
/// loop. --million: maps of a million layers, too.
int RunMeasurements(int argc, char** argv);

} // namespace Orvane::Benchmarks
