// SPDX-License-Identifier: MIT
// Takes the place of system calls in the whole program, so that a PowerCut hears of files that are synced,
// renamed or removed past SQLite. Linux only.
#include "store/failing_files/PowerCut.h"

#include <cerrno>
#include <dlfcn.h>
#include <limits.h>
#include <unistd.h>

namespace {

using Orvane::Testing::PowerCut;

template <typename Function> Function* Real(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

std::string PathOf(int file)
{
    char path[PATH_MAX] = {};
    const std::string link = "/proc/self/fd/" + std::to_string(file);
    const ssize_t size = readlink(link.c_str(), path, sizeof path - 1);
    return std::string(path, size > 0 ? size_t(size) : 0);
}

int NoPower()
{
    errno = EIO;
    return -1;
}

} // namespace

extern "C" {

// Nothing is really synced.
[[gnu::visibility("default")]] int fsync(int file)
{
    PowerCut* power = PowerCut::Living();
    return !power || power->NoteSync(PathOf(file)) ? 0 : NoPower();
}

[[gnu::visibility("default")]] int rename(const char* from, const char* to) noexcept
{
    PowerCut* power = PowerCut::Living();
    if (power && !power->NoteRename(from, to))
        return NoPower();
    return Real<int(const char*, const char*)>("rename")(from, to);
}

[[gnu::visibility("default")]] int unlink(const char* path) noexcept
{
    PowerCut* power = PowerCut::Living();
    if (power && !power->NoteDelete(path))
        return NoPower();
    return Real<int(const char*)>("unlink")(path);
}

[[gnu::visibility("default")]] int remove(const char* path) noexcept
{
    PowerCut* power = PowerCut::Living();
    if (power && !power->NoteDelete(path))
        return NoPower();
    return Real<int(const char*)>("remove")(path);
}

} // extern "C"
