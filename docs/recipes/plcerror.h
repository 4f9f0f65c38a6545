// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PLCERROR_H
#define PLCERROR_H

#include "storedprogram.h"
#include "wmmainwindow.h"

//! [plc error]
/// The editor's row, from 1, of line \a line, from 1, of the program as it was sent. Of a comment
/// that the editor has dropped it is the row before. 0 when the editor shows another program.
inline int rowOfSentLine(const StoredProgram &sent, WGCodeEditer *editor, int line)
{
    const QStringList lines = sent.lines();
    if (line < 1 || line > lines.size())
        return 0;
    if (sent.isShownAsItIs())
        return line;
    if (!sent.isShownCleaned())
        return 0;
    int row = 0;
    for (int i = 0; i < line; ++i)
        if (!editor->preproccess(QStringList(lines.at(i))).isEmpty())
            ++row;
    return qMax(row, 1);
}

/// Shows the line that the PLC complains of: it stands in red until the cursor moves. False when
/// the operator has to be told the line in words.
inline bool goToPlcError(WMMainWindow *window, int line)
{
    WGCodeEditer *editor = window->findChild<WGCodeEditer *>();
    const StoredProgram sent(editor, window->getCurrentFile());
    const int row = rowOfSentLine(sent, editor, line);
    if (row > 0)
        editor->gotoLine(row);
    return row > 0;
}
//! [plc error]

#endif // PLCERROR_H
