// SPDX-License-Identifier: MIT
#include "benchmarks/Machine.h"

#include <QSysInfo>
#include <QtGlobal>

#include <cstdlib>
#include <fstream>
#include <sqlite3.h>
#include <thread>
#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace Orvane::Benchmarks {

namespace {

// The rest of the first line that begins with the key, without the blanks and the colon after the key.
std::string LineOf(const char* file, const std::string& key)
{
    std::ifstream stream(file);
    for (std::string line; std::getline(stream, line);) {
        if (line.rfind(key, 0) == 0) {
            const size_t begin = line.find_first_not_of(" \t:", key.size());
            return begin == std::string::npos ? std::string() : line.substr(begin);
        }
    }
    return {};
}

} // namespace

std::string MachineDescription()
{
    return "Processor: " + LineOf("/proc/cpuinfo", "model name") + ", "
        + std::to_string(std::thread::hardware_concurrency()) + " cores\n"
        + "System: " + QSysInfo::prettyProductName().toStdString() + ", " + QSysInfo::buildAbi().toStdString()
        + "\nQt " + qVersion() + ", SQLite " + sqlite3_libversion() + ", compiler " + __VERSION__ + "\n";
}

void GiveMemoryBack()
{
#if defined(__GLIBC__)
    malloc_trim(0);
#endif
}

void ResetPeakMemory()
{
    std::ofstream("/proc/self/clear_refs") << "5";
}

double PeakMemoryInMegabytes()
{
    const std::string kilobytes = LineOf("/proc/self/status", "VmHWM");
    return kilobytes.empty() ? 0 : std::stod(kilobytes) / 1024;
}

} // namespace Orvane::Benchmarks
