// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "fuzz.h"
#include "plaineditor.h"
#include "wgcodeediter.h"

#include <QTextBlock>

// A program on its way into the editor; every second one is repeated until it is a long one, which
// goes in by pieces.
void Fuzz::tryInput(QByteArray bytes)
{
    static WGCodeEditer editor(nullptr);
    static PlainEditor plain(nullptr);
    const bool isLong = takeNumber(&bytes, 2) == 1;
    QString text = programText(bytes);
    if (isLong) {
        text = text.left(200) + QLatin1Char('\n');
        text = text.repeated(500 / text.count(QLatin1Char('\n')) + 1);
    }
    editor.clear();
    plain.clear();
    editor.readGCode(text);
    plain.readGCode(text);
    FUZZ_REQUIRE(editor.textCursor().position() == plain.textCursor().position());
    QTextBlock block = editor.document()->begin();
    QTextBlock wanted = plain.document()->begin();
    for (; wanted.isValid(); block = block.next(), wanted = wanted.next()) {
        FUZZ_REQUIRE(block.text() == wanted.text());
        FUZZ_REQUIRE(block.layout()->formats() == wanted.layout()->formats());
    }
    FUZZ_REQUIRE(!block.isValid());
}
