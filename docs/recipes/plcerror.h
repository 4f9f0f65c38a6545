// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PLCERROR_H
#define PLCERROR_H

#include "wmmainwindow.h"

#include <QStatusBar>

#include <guards/windowprogram.h>

//! [plc error]
/// Shows the operator the line of the open program that the PLC complains of, and why. The line
/// stands in red until the cursor moves. Where the editor shows another program, the number is all
/// there is to say.
inline void showPlcError(WMMainWindow *window, QStatusBar *bar, int line, const QString &why)
{
    if (WindowProgram::goToFileLine(window, line))
        bar->showMessage(why);
    else
        bar->showMessage(
            QObject::tr("Line %1 of the program that was sent: %2").arg(line).arg(why));
}
//! [plc error]

#endif // PLCERROR_H
