// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "fuzz.h"
#include "plaineditor.h"
#include "wgcodeediter.h"
#include "wmmainwindow.h"

#include <QSyntaxHighlighter>

// The words of a line that change something, on a program with the cursor somewhere in it. The
// first line is the candidate.
void Fuzz::tryInput(QByteArray bytes)
{
    static WMMainWindow window(nullptr, 0);
    static PlainEditor plain(nullptr);
    static PlainFilter filter(&plain);
    QPlainTextEdit *const editors[] = {window.findChild<WGCodeEditer *>(), &plain};
    const int row = takeNumber(&bytes, 32);
    const QString candidate = QString::fromUtf8(takePart(&bytes, '\n'));
    const QString text = QString::fromUtf8(bytes);
    for (QPlainTextEdit *editor : editors) {
        // Colours take most of the time and play no part.
        editor->document()->findChild<QSyntaxHighlighter *>()->setDocument(nullptr);
        editor->setPlainText(text);
        editor->setTextCursor(QTextCursor(editor->document()->findBlockByNumber(row)));
    }
    FUZZ_REQUIRE(window.getEffectiveString(candidate) == filter.getEffectiveString(candidate));
}
