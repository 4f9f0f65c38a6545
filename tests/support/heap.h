// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef HEAP_H
#define HEAP_H

#include <QCoreApplication>
#include <QEvent>
#include <QPixmapCache>

#include <malloc.h>
#if defined(__SANITIZE_ADDRESS__)
// The compiler comes without the header that has it.
extern "C" size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace Heap {

/// To be called once. The toolkit keeps what it has painted of icons for half a minute and up to
/// ten megabytes: without a limit of 0 the heap of a test grows by that.
inline void keepNoPixmaps()
{
    QPixmapCache::setCacheLimit(0);
}

/// The bytes in use. To the byte only without the threads' caches, whose free blocks count as used:
/// the tests that measure are started with GLIBC_TUNABLES=glibc.malloc.tcache_count=0.
inline qint64 used()
{
#if defined(__SANITIZE_ADDRESS__)
    return qint64(__sanitizer_get_current_allocated_bytes());
#else
    const struct mallinfo2 heap = mallinfo2();
    return qint64(heap.uordblks + heap.hblkhd);
#endif
}

/// The same after everything has gone that waits for its deletion.
inline qint64 settled()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::sendPostedEvents();
    return used();
}

} // namespace Heap

#endif // HEAP_H
