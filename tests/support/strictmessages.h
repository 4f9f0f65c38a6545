// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef STRICTMESSAGES_H
#define STRICTMESSAGES_H

#include <QString>
#include <QStringList>

/// A message handler that remembers every warning of the toolkit: a mistyped string connect shows
/// only there. FilarixTest::cleanup() fails the test that caused one it did not expect.
namespace StrictMessages {

/// Installs the handler on top of QtTest's, which still prints each message. QtTest installs its
/// own when a test program starts, so this is called before each test; twice does no harm.
void install();

/// A warning that holds \a text is expected in the current test, any number of times.
void expect(const QString &text);

/// Warnings and worse since the last reset() that no expect() covers.
QStringList unexpected();

/// Expected warnings that came since the last reset().
QStringList expectedSeen();

/// qDebug() messages since the last reset().
QStringList debugMessages();

/// Forgets messages and expectations.
void reset();

} // namespace StrictMessages

#endif // STRICTMESSAGES_H
