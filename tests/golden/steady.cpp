// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// What a picture shows of the machine on which it is taken: the time of day, the dates of files and
// the room on the disk. Whatever a screen comes to show of them later, it is the same in each run.
//
// A program's own functions go before those of the system's library for all that it is linked with.

#include <dlfcn.h>
#include <initializer_list>

#include <sys/stat.h>
#include <sys/statvfs.h>
#include <sys/time.h>
#include <time.h>

#define EXPORTED extern "C" __attribute__((visibility("default")))

namespace {

// Monday, 4 May 2026, 9:30 UTC.
const long long morning = 1777887000;
// A walk of minutes is a moment, so that no clock moves on, and still everything has its order.
const long long slowness = 10000;
const long long second = 1000000000;
// Files were written before: nobody waits until the one who writes them rests.
const long long age = 3 * 24 * 3600 + 5000;
const unsigned long long blocks = 1024 * 1024;
const unsigned long long blockSize = 4096;

long long now(clockid_t clock)
{
    timespec time = {};
    clock_gettime(clock, &time);
    return time.tv_sec * second + time.tv_nsec;
}

const long long started = now(CLOCK_REALTIME);
const long long startedAt = now(CLOCK_MONOTONIC);

/// As it is told, for what passed since the program's start. All in nanoseconds.
long long told(long long sinceStart)
{
    return morning * second + (sinceStart > 0 ? sinceStart / slowness : 0);
}

template<typename Time>
void retell(Time *time, int status)
{
    if (status != 0)
        return;
    const long long written = told(time->tv_sec * second + time->tv_nsec - started);
    const long long moment = written - age * second;
    time->tv_sec = moment / second;
    time->tv_nsec = unsigned(moment % second);
}

template<typename Function>
Function next(const char *name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

} // namespace

EXPORTED int gettimeofday(struct timeval *time, void *)
{
    const long long moment = told(now(CLOCK_MONOTONIC) - startedAt);
    time->tv_sec = moment / second;
    time->tv_usec = moment % second / 1000;
    return 0;
}

EXPORTED int statx(int folder, const char *path, int flags, unsigned mask, struct statx *result)
{
    static const auto original =
        next<int (*)(int, const char *, int, unsigned, struct statx *)>("statx");
    const int status = original(folder, path, flags, mask, result);
    for (statx_timestamp *time :
         {&result->stx_mtime, &result->stx_ctime, &result->stx_btime, &result->stx_atime})
        retell(time, status);
    return status;
}

/// The older calls, under both of their names each.
#define STEADY_STAT(name, type, parameter)                                                         \
    EXPORTED int name(parameter subject, struct type *result)                                      \
    {                                                                                              \
        static const auto original = next<int (*)(parameter, struct type *)>(#name);               \
        const int status = original(subject, result);                                              \
        retell(&result->st_mtim, status);                                                          \
        retell(&result->st_ctim, status);                                                          \
        return status;                                                                             \
    }

STEADY_STAT(stat, stat, const char *)
STEADY_STAT(stat64, stat64, const char *)
STEADY_STAT(lstat, stat, const char *)
STEADY_STAT(lstat64, stat64, const char *)
STEADY_STAT(fstat, stat, int)
STEADY_STAT(fstat64, stat64, int)

EXPORTED int statvfs(const char *, struct statvfs *result)
{
    *result = {};
    result->f_bsize = result->f_frsize = blockSize;
    result->f_blocks = 2 * blocks;
    result->f_bfree = result->f_bavail = blocks;
    result->f_namemax = 255;
    return 0;
}

EXPORTED int statvfs64(const char *path, struct statvfs64 *result)
{
    return statvfs(path, reinterpret_cast<struct statvfs *>(result));
}
