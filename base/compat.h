// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef COMPAT_H
#define COMPAT_H

// The one header that knows how Qt 4.8 (the panels) and Qt 5.15 (PCs) differ.

#include <QCoreApplication>
#include <QHeaderView>
#include <QString>

#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
/// Qt 4 calls languageChange() itself on QEvent::LanguageChange; here changeEvent() has to.
#define FILARIX_LANGUAGE_CHANGE_BY_EVENT 1
#endif

namespace Compat {

inline void setSectionResizeMode(QHeaderView *header, int section, QHeaderView::ResizeMode mode)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    header->setSectionResizeMode(section, mode);
#else
    header->setResizeMode(section, mode);
#endif
}

/// Translates a source text that holds non-ASCII characters, written here in UTF-8: Qt 4's tr()
/// would take it for Latin-1.
inline QString translateUtf8(const char *context, const char *text)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    return QCoreApplication::translate(context, text);
#else
    return QCoreApplication::translate(context, text, nullptr, QCoreApplication::UnicodeUTF8);
#endif
}

} // namespace Compat

#endif // COMPAT_H
