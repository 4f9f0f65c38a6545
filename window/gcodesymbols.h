// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef GCODESYMBOLS_H
#define GCODESYMBOLS_H

#include <QString>

// The operators and letters of the G-code dialects. Each file that includes this has a copy of its
// own, made when the library is loaded. Nothing in the library reads the table yet.

static const QString gcodeOperators[] = {
    QLatin1String("+"), QLatin1String("-"), QLatin1String("*"),  QLatin1String("/"),
    QLatin1String("("), QLatin1String(")"), QLatin1String("["),  QLatin1String("]"),
    QLatin1String("="), QLatin1String("%"), QLatin1String("!"),  QLatin1String("@"),
    QLatin1String("#"), QLatin1String("$"), QLatin1String("?"),  QLatin1String(";"),
    QLatin1String(":"), QLatin1String("'"), QLatin1String("\""), QLatin1String("<"),
    QLatin1String(">"), QLatin1String("|"), QLatin1String("&&"), QLatin1String("\\"),
    QLatin1String("{"), QLatin1String("}"),
};

// In keyboard order.
static const QString gcodeLowerCaseLetters = QLatin1String("qwertyuiopasdfghjklzxcvbnm");
static const QString gcodeUpperCaseLetters = QLatin1String("QWERTYUIOPASDFGHJKLZXCVBNM");

#endif // GCODESYMBOLS_H
