// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef LANGUAGESWITCH_H
#define LANGUAGESWITCH_H

#include <QCoreApplication>
#include <QScopedPointer>
#include <QTranslator>

//! [language switch]
/// The one language that the screens show. The library loads none; it follows the application's
/// translators, and so do the dialogs that are made for each use.
class LanguageSwitch
{
public:
    LanguageSwitch() {}
    ~LanguageSwitch() { use(nullptr); }

    /// Loads the file \a name from \a folder. On failure the language stays what it was.
    bool load(const QString &name, const QString &folder)
    {
        QScopedPointer<QTranslator> next(new QTranslator);
        if (!next->load(name, folder))
            return false;
        use(next.take());
        return true;
    }

    /// Takes \a next over; null goes back to the English of the sources.
    void use(QTranslator *next)
    {
        if (m_current)
            QCoreApplication::removeTranslator(m_current.data());
        m_current.reset(next);
        if (next)
            QCoreApplication::installTranslator(next);
    }

private:
    Q_DISABLE_COPY(LanguageSwitch)

    QScopedPointer<QTranslator> m_current;
};
//! [language switch]

#endif // LANGUAGESWITCH_H
