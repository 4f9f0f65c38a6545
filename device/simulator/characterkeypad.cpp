// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "hmidevice/characterkeypad.h"

#include "keypaddialog.h"

namespace {

typedef KeypadDialog<CharacterKeypad> CharacterDialog;

const char *const keys[] = {"1      2      3       4    5     6     7     8     9     0     back",
                            "q      w      e       r    t     y     u     i     o     p     -",
                            "a      s      d       f    g     h     j     k     l     _     .",
                            "shift  shift  z       x    c     v     b     n     m     clear clear",
                            "cancel cancel symbols left space space space space right ok    ok",
                            nullptr};

const char *const narrowKeys[] = {
    "1      2       3      4     5     6",     "7      8       9      0     -     back",
    "a      b       c      d     e     f",     "g      h       i      j     k     l",
    "m      n       o      p     q     r",     "s      t       u      v     w     x",
    "y      z       _      .     clear clear", "shift  symbols space  space left  right",
    "cancel cancel  cancel ok    ok    ok",    nullptr};

} // namespace

CharacterKeypad::CharacterKeypad(QWidget *parent) : QDialog(parent) {}

CharacterKeypad::~CharacterKeypad() = default;

CharacterKeypad *CharacterKeypad::instance()
{
    const KeypadFace face = {keys, narrowKeys, 38, QSize(88, 72), false};
    return CharacterDialog::instance(face);
}

void CharacterKeypad::setObject(QObject *object)
{
    CharacterDialog::frameOf(this)->request().object = object;
}

void CharacterKeypad::setValidator(const QValidator *validator)
{
    CharacterDialog::frameOf(this)->setValidator(validator);
}

void CharacterKeypad::setText(const QString &text)
{
    CharacterDialog::frameOf(this)->setText(text);
}

void CharacterKeypad::setShowType(int)
{
    // The stand-in has one face.
}
