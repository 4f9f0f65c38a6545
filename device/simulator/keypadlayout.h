// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef KEYPADLAYOUT_H
#define KEYPADLAYOUT_H

#include <QList>
#include <QRect>
#include <QSize>
#include <QString>

/// One key of a layout: what it is, and the cells that it covers, counted from 0.
struct PlacedKey
{
    QString token;
    QRect cells;
};

/// Where the keys of a keypad lie, read from a table that looks like the keypad:
///
///     static const char *const rows[] = { "7 8 9 back back",
///                                         "0 - . ok   ok", nullptr };
///
/// A token of one character types it; a longer one names a key that does something else. Equal
/// tokens side by side, or one above the other, make one larger key.
class KeypadLayout
{
public:
    KeypadLayout() = default;
    /// \a rows ends with a null pointer. All rows must have as many tokens as the first. The cells
    /// of \a absent, if it names a key, go to the key \a heir, which stands beside it.
    explicit KeypadLayout(const char *const *rows, const QString &absent = QString(),
                          const QString &heir = QString());

    /// The number of columns and rows.
    QSize cells() const { return m_cells; }
    /// The keys in the order of the table.
    const QList<PlacedKey> &keys() const { return m_keys; }

private:
    void place(const QString &token, const QRect &cell);

    QSize m_cells;
    QList<PlacedKey> m_keys;
};

#endif // KEYPADLAYOUT_H
