// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "hmidevice/gcodekeypad.h"

#include "keypaddialog.h"

namespace {

typedef KeypadDialog<GCodeKeypad> GCodeDialog;

// N is for line numbers. The key "next" is there when the caller allows it, and OK has its place
// otherwise.
const char *const keys[] = {"G      M      S    T    7     8     9     back  back",
                            "X      Y      Z    F    4     5     6     clear clear",
                            "U      V      W    N    1     2     3     left  right",
                            "I      J      K    ;    -     0     .     next  next",
                            "cancel cancel page page space space space ok    ok",
                            nullptr};

const char *const narrowKeys[] = {
    "G      M      S    T    F     back",  "X      Y      Z    I    J     K",
    "U      V      W    N    left  right", "7      8      9    ;    clear clear",
    "4      5      6    .    space space", "1      2      3    0    -     page",
    "cancel cancel next next ok    ok",    nullptr};

// The letters that few lines need, and the text of a comment.
const char *const textKeys[] = {"1      2      3    4    5     6     7     8    9    0     back",
                                "Q      W      E    R    T     Y     U     I    O    P     -",
                                "A      S      D    F    G     H     J     K    L    ;     .",
                                "small  Z      X    C    V     B     N     M    ,    clear clear",
                                "cancel cancel page left space space right next next ok    ok",
                                nullptr};

const char *const narrowTextKeys[] = {
    "1      2      3    4     5     6",     "7      8      9    0     -     back",
    "A      B      C    D     E     F",     "G      H      I    J     K     L",
    "M      N      O    P     Q     R",     "S      T      U    V     W     X",
    "Y      Z      ;    .     clear clear", "small  page   ,    space left  right",
    "cancel cancel next next  ok    ok",    nullptr};

// For a small screen, with keys that fit a glove: digits on the first page alone.
const char *const smallKeys[] = {"G      M      S    T     7 8 9 back  page",
                                 "X      Y      Z    F     4 5 6 clear clear",
                                 "I      J      K    ;     1 2 3 next  next",
                                 "cancel cancel left right - 0 . ok    ok", nullptr};

const char *const smallTextKeys[] = {"A      B      C     D E     F    G    H    page",
                                     "I      J      K     L M     N    O    P    Q",
                                     "R      S      T     U V     W    X    Y    Z",
                                     "cancel cancel small , space back next next ok", nullptr};

const char *const smallNarrowKeys[] = {"G      M      S    T     F",
                                       "X      Y      Z    U     V",
                                       "I      J      K    W     N",
                                       "7      8      9    ;     space",
                                       "4      5      6    clear clear",
                                       "1      2      3    page  back",
                                       "-      0      .    left  right",
                                       "cancel cancel next next  ok",
                                       nullptr};

const char *const smallNarrowTextKeys[] = {"A      B      C     D     E",
                                           "F      G      H     I     J",
                                           "K      L      M     N     O",
                                           "P      Q      R     S     T",
                                           "U      V      W     X     Y",
                                           "Z      ,      small page  back",
                                           "clear  clear  space left  right",
                                           "cancel cancel next  next  ok",
                                           nullptr};

} // namespace

GCodeKeypad::GCodeKeypad(QWidget *parent) : QDialog(parent) {}

GCodeKeypad::~GCodeKeypad() = default;

GCodeKeypad *GCodeKeypad::instance()
{
    KeypadFace face(keys, narrowKeys, 38, QSize(88, 72), false);
    face.wide.second = textKeys;
    face.narrow.second = narrowTextKeys;
    face.smallWide = KeypadPages{smallKeys, smallTextKeys};
    face.smallNarrow = KeypadPages{smallNarrowKeys, smallNarrowTextKeys};
    face.forWords = true;
    face.name = QT_TRANSLATE_NOOP("KeypadFrame", "Line");
    return GCodeDialog::instance(face);
}

void GCodeKeypad::setObject(QObject *object)
{
    GCodeDialog::frameOf(this)->request().object = object;
}

void GCodeKeypad::setValidator(const QValidator *validator)
{
    GCodeDialog::frameOf(this)->setValidator(validator);
}

void GCodeKeypad::setText(const QString &text)
{
    GCodeDialog::frameOf(this)->setText(text);
}

void GCodeKeypad::setLimitToolTip(const QString &toolTip)
{
    GCodeDialog::frameOf(this)->request().limit = toolTip;
}
