// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FUZZ_H
#define FUZZ_H

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <cstddef>
#include <cstdint>

/// What the harnesses share. Each program has the one application, off the screen, before the first
/// input arrives; it runs in the sandbox only, since it writes to a home and to fixed paths.
namespace Fuzz {

/// The bytes of a program file, read as the window reads one.
QString programText(const QByteArray &bytes);
/// The bytes up to the first of \a separator, which are taken off \a bytes with it.
QByteArray takePart(QByteArray *bytes, char separator);
/// A number from 0 to \a count - 1, for which the first byte is taken off \a bytes.
int takeNumber(QByteArray *bytes, int count);
/// One string for each line.
QStringList strings(const QByteArray &bytes);

/// Ends the program with a finding.
[[noreturn]] void fail(const char *condition, const char *file, int line);

/// The harness: tries one input.
void tryInput(QByteArray bytes);

} // namespace Fuzz

#define FUZZ_REQUIRE(condition)                                                                    \
    do {                                                                                           \
        if (!(condition))                                                                          \
            Fuzz::fail(#condition, __FILE__, __LINE__);                                            \
    } while (0)

#endif // FUZZ_H
