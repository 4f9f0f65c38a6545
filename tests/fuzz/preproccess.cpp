// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "fuzz.h"
#include "plaineditor.h"
#include "wgcodeediter.h"

// The cleaning of one piece of a program.
void Fuzz::tryInput(QByteArray bytes)
{
    static WGCodeEditer editor(nullptr);
    static PlainEditor plain(nullptr);
    const QStringList lines = programText(bytes).split(QLatin1Char('\n'));
    FUZZ_REQUIRE(editor.preproccess(lines) == plain.preproccess(lines));
}
