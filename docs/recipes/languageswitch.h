// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef LANGUAGESWITCH_H
#define LANGUAGESWITCH_H

#include <QCoreApplication>
#include <QScopedPointer>
#include <QTranslator>

//! [language switch]
/// Has the screens show the language of the file \a name in \a folder, in the place of \a current.
/// The library loads no language. It follows the application's translators, and so do the dialogs
/// that are made for each use. On failure the language stays what it was. `current->reset()` goes
/// back to the English of the sources.
inline bool switchLanguage(QScopedPointer<QTranslator> *current, const QString &name,
                           const QString &folder)
{
    QScopedPointer<QTranslator> next(new QTranslator);
    if (!next->load(name, folder))
        return false;
    QCoreApplication::installTranslator(next.data());
    current->reset(next.take()); // the old one removes itself
    return true;
}
//! [language switch]

#endif // LANGUAGESWITCH_H
