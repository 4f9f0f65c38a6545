// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

// Loaded into an unchanged program by LD_PRELOAD, it stands before the system's calls on files.
//
// FILARIX_WATCHED names folders, parted by ":". A call of the program's first thread on something
// below one of them is written to the file FILARIX_WATCH_LOG, one line each, with the way that led
// there; but not where the library is nearer to the call than the program: its own calls are part
// of its design. Nor are those of its lists of files, which the toolkit makes for it while it
// paints, and those of the commands that it starts.
//
// FILARIX_HANGING names folders, too. While the file FILARIX_HANG_SWITCH exists, whoever calls for
// something below one of them waits, whatever thread it is: a file system that hangs.

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include <dirent.h>
#include <dlfcn.h>
#include <execinfo.h>
#include <fcntl.h>
#include <pthread.h>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <sys/statvfs.h>
#include <sys/syscall.h>
#include <time.h>
#include <unistd.h>

namespace {

const int mostFrames = 100;
const long pauseNs = 20 * 1000 * 1000;
// The library's model of a folder; the program has none.
const char libraryModel[] = "9QDirModel";
// The program that the watch was loaded into first. What it starts inherits the name.
const char watchedProcess[] = "FILARIX_WATCHED_PROCESS";

// In the middle of a call of our own.
thread_local bool isBusy = false;

const char *setting(const char *name)
{
    const char *value = getenv(name);
    return value ? value : "";
}

/// Whether \a path is one of \a folders, parted by ":", or below one.
bool isBelow(const char *path, const char *folders)
{
    while (*folders) {
        const size_t length = strcspn(folders, ":");
        if (length > 0 && !strncmp(path, folders, length)
            && (path[length] == '\0' || path[length] == '/'))
            return true;
        folders += length;
        folders += *folders == ':';
    }
    return false;
}

__attribute__((constructor)) void begin()
{
    setenv(watchedProcess, std::to_string(getpid()).c_str(), 0);
}

bool isFirstThread()
{
    return syscall(SYS_gettid) == getpid() && atoi(setting(watchedProcess)) == getpid();
}

const char *fileOf(const Dl_info &info)
{
    const char *slash = info.dli_fname ? strrchr(info.dli_fname, '/') : nullptr;
    return slash ? slash + 1 : "?";
}

/// The way to the call; empty where it is the library's own.
std::string way()
{
    void *frames[mostFrames];
    const int count = backtrace(frames, mostFrames);
    std::string text;
    bool isPrograms = false;
    for (int i = 2; i < count; ++i) {
        Dl_info info = {};
        if (!dladdr(frames[i], &info))
            continue;
        const std::string file = fileOf(info);
        if (!isPrograms && file.compare(0, 16, "libFilarixModule") == 0)
            return std::string();
        isPrograms = isPrograms || file.compare(0, 13, "filarix-panel") == 0
                     || file.compare(0, 14, "libFilarixHost") == 0;
        const std::string symbol = info.dli_sname ? info.dli_sname : "";
        if (!isPrograms && symbol.find(libraryModel) != std::string::npos)
            return std::string();
        text += " < " + (symbol.empty() ? file : symbol);
        // What lies behind is the way to the event loop, not to the call.
        if (symbol.find("QEventLoop4exec") != std::string::npos)
            break;
    }
    return text;
}

void note(const char *call, const char *path)
{
    const std::string from = way();
    if (from.empty())
        return;
    const std::string line = std::string(call) + ' ' + path + from + '\n';
    static const int log = int(syscall(SYS_openat, AT_FDCWD, setting("FILARIX_WATCH_LOG"),
                                       O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666));
    if (syscall(SYS_write, log, line.data(), line.size()) < 0)
        abort();
}

bool hangs()
{
    return syscall(SYS_faccessat, AT_FDCWD, setting("FILARIX_HANG_SWITCH"), F_OK) == 0;
}

void look(const char *call, const char *path)
{
    if (isBusy || !path || path[0] != '/')
        return;
    isBusy = true;
    const int error = errno;
    if (isFirstThread() && isBelow(path, setting("FILARIX_WATCHED")))
        note(call, path);
    if (isBelow(path, setting("FILARIX_HANGING"))) {
        const struct timespec pause = {0, pauseNs};
        while (hangs())
            nanosleep(&pause, nullptr);
    }
    errno = error;
    isBusy = false;
}

/// The system's own function behind ours of that name.
template<typename Function>
Function next(const char *name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

} // namespace

// Each a function of the C library: first the look, then the call.
#define WATCHED(type, name, declared, given, path)                                                 \
    extern "C" type name declared                                                                  \
    {                                                                                              \
        look(#name, path);                                                                         \
        static type(*const real) declared = next<type(*) declared>(#name);                         \
        return real given;                                                                         \
    }

#define WATCHED_OPEN(name, declared, given, path)                                                  \
    extern "C" int name declared                                                                   \
    {                                                                                              \
        va_list arguments;                                                                         \
        va_start(arguments, flags);                                                                \
        const mode_t mode = flags & (O_CREAT | O_TMPFILE) ? va_arg(arguments, mode_t) : 0;         \
        va_end(arguments);                                                                         \
        look(#name, path);                                                                         \
        static int(*const real) declared = next<int(*) declared>(#name);                           \
        return real given;                                                                         \
    }

WATCHED_OPEN(open, (const char *path, int flags, ...), (path, flags, mode), path)
WATCHED_OPEN(open64, (const char *path, int flags, ...), (path, flags, mode), path)
WATCHED_OPEN(openat, (int folder, const char *path, int flags, ...), (folder, path, flags, mode),
             path)
WATCHED_OPEN(openat64, (int folder, const char *path, int flags, ...), (folder, path, flags, mode),
             path)
WATCHED(FILE *, fopen, (const char *path, const char *mode), (path, mode), path)
WATCHED(FILE *, fopen64, (const char *path, const char *mode), (path, mode), path)
WATCHED(int, stat, (const char *path, struct stat *info), (path, info), path)
WATCHED(int, stat64, (const char *path, struct stat64 *info), (path, info), path)
WATCHED(int, lstat, (const char *path, struct stat *info), (path, info), path)
WATCHED(int, lstat64, (const char *path, struct stat64 *info), (path, info), path)
WATCHED(int, statx, (int folder, const char *path, int flags, unsigned mask, struct statx *info),
        (folder, path, flags, mask, info), path)
WATCHED(int, statfs, (const char *path, struct statfs *info), (path, info), path)
WATCHED(int, statfs64, (const char *path, struct statfs64 *info), (path, info), path)
WATCHED(int, statvfs, (const char *path, struct statvfs *info), (path, info), path)
WATCHED(int, statvfs64, (const char *path, struct statvfs64 *info), (path, info), path)
WATCHED(int, access, (const char *path, int mode), (path, mode), path)
WATCHED(DIR *, opendir, (const char *path), (path), path)
WATCHED(int, mkdir, (const char *path, mode_t mode), (path, mode), path)
WATCHED(int, rmdir, (const char *path), (path), path)
WATCHED(int, unlink, (const char *path), (path), path)
WATCHED(int, rename, (const char *path, const char *target), (path, target), path)
WATCHED(int, renameat2, (int from, const char *path, int to, const char *target, unsigned flags),
        (from, path, to, target, flags), path)
WATCHED(int, link, (const char *path, const char *target), (path, target), target)
WATCHED(int, linkat, (int from, const char *path, int to, const char *target, int flags),
        (from, path, to, target, flags), target)
WATCHED(int, chmod, (const char *path, mode_t mode), (path, mode), path)
WATCHED(int, truncate, (const char *path, off_t length), (path, length), path)
WATCHED(ssize_t, readlink, (const char *path, char *buffer, size_t size), (path, buffer, size),
        path)
WATCHED(char *, realpath, (const char *path, char *buffer), (path, buffer), path)
WATCHED(int, symlink, (const char *target, const char *path), (target, path), path)
WATCHED(int, inotify_add_watch, (int handle, const char *path, unsigned mask), (handle, path, mask),
        path)
