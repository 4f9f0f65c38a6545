// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "gcodenumber_p.h"

#include <cfloat>

namespace {

#if FLT_EVAL_METHOD == 0
const bool isDoubleExact = true;
#else
const bool isDoubleExact = false; // a quotient would be rounded twice
#endif

/// An integer of so many digits is exact in a double, and so is the power of ten that divides it.
/// The quotient of the two is then the double nearest to the decimal number.
const int exactDigits = 15;
const double powersOfTen[exactDigits + 1] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                             1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

/// Reads digits on to \a number; the position behind them.
const QChar *readDigits(const QChar *at, const QChar *end, qint64 *number)
{
    for (; at != end && at->unicode() >= '0' && at->unicode() <= '9'; ++at)
        *number = 10 * *number + (at->unicode() - '0');
    return at;
}

} // namespace

double GCodeNumber::toDouble(const QChar *begin, const QChar *end)
{
    const int size = int(end - begin);
    if (isDoubleExact && size > 0 && size <= exactDigits) {
        const bool isNegative = *begin == QLatin1Char('-');
        const QChar *const digits = isNegative ? begin + 1 : begin;
        qint64 number = 0;
        const QChar *behind = readDigits(digits, end, &number);
        int decimals = 0;
        if (behind != digits && behind != end && *behind == QLatin1Char('.')) {
            const QChar *const fraction = behind + 1;
            behind = readDigits(fraction, end, &number);
            decimals = int(behind - fraction);
        }
        if (behind == end && digits != end && end[-1] != QLatin1Char('.')) {
            const double value = double(number) / powersOfTen[decimals];
            return isNegative ? -value : value;
        }
    }
    return QString::fromRawData(begin, size).toDouble();
}
