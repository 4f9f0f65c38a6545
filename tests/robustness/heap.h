// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef HEAP_H
#define HEAP_H

#include <QCoreApplication>
#include <QEvent>
#include <QPixmapCache>

#include <malloc.h>

namespace Heap {

/// To be called once. The toolkit keeps what it has painted of icons for half a minute and up to
/// ten megabytes: without a limit of 0 the heap of a test grows by that.
inline void keepNoPixmaps()
{
    QPixmapCache::setCacheLimit(0);
}

/// The bytes in use, after everything has gone that waits for its deletion.
inline qint64 used()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::sendPostedEvents();
    return qint64(mallinfo2().uordblks + mallinfo2().hblkhd);
}

} // namespace Heap

#endif // HEAP_H
