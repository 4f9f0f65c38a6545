// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "temporaryhome.h"

#include <QFile>

TemporaryHome::TemporaryHome()
{
    if (!isValid())
        return;
    qputenv("HOME", QFile::encodeName(path()));
    // These variables may name folders of the home of before.
    for (const char *folder : {"XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"})
        qunsetenv(folder);
}
