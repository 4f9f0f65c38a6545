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

// For a small screen, with keys that fit a glove: letters, and on a second page digits and signs.
const char *const smallKeys[] = {"a      b      c      d     e       f     g     h     i",
                                 "j      k      l      m     n       o     p     q     r",
                                 "s      t      u      v     w       x     y     z     back",
                                 "cancel cancel digits shift symbols space clear clear ok",
                                 nullptr};

const char *const smallDigitKeys[] = {"(      )      +      /     7 8 9 back  space",
                                      ":      =      ,      #     4 5 6 clear clear",
                                      "&      @      %      _     1 2 3 left  right",
                                      "cancel cancel digits ~     - 0 . ok    ok", nullptr};

const char *const smallNarrowKeys[] = {"a      b      c      d       e",
                                       "f      g      h      i       j",
                                       "k      l      m      n       o",
                                       "p      q      r      s       t",
                                       "u      v      w      x       y",
                                       "z      _      shift  symbols back",
                                       "clear  clear  space  left    right",
                                       "cancel cancel digits ok      ok",
                                       nullptr};

const char *const smallNarrowDigitKeys[] = {"(      )      +      /       _",
                                            ":      =      ,      #       &",
                                            "@      %      [      ]       !",
                                            "7      8      9      ~       '",
                                            "4      5      6      clear   clear",
                                            "1      2      3      space   back",
                                            "-      0      .      left    right",
                                            "cancel cancel digits ok      ok",
                                            nullptr};

} // namespace

CharacterKeypad::CharacterKeypad(QWidget *parent) : QDialog(parent) {}

CharacterKeypad::~CharacterKeypad() = default;

CharacterKeypad *CharacterKeypad::instance()
{
    KeypadFace face(keys, narrowKeys, 38, QSize(88, 72), false);
    face.smallWide = KeypadPages{smallKeys, smallDigitKeys};
    face.smallNarrow = KeypadPages{smallNarrowKeys, smallNarrowDigitKeys};
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
