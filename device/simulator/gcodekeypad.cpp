// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "hmidevice/gcodekeypad.h"

#include "keypaddialog.h"

namespace {

typedef KeypadDialog<GCodeKeypad> GCodeDialog;

// N is for line numbers.
const char *const keys[] = {"G      M      S     T     7     8     9     back  back",
                            "X      Y      Z     F     4     5     6     clear clear",
                            "U      V      W     N     1     2     3     left  right",
                            "I      J      K     ;     -     0     .     ok    ok",
                            "cancel cancel space space space space space ok    ok",
                            nullptr};

const char *const narrowKeys[] = {
    "G      M      S      T     F     back",  "X      Y      Z      I     J     K",
    "U      V      W      N     left  right", "7      8      9      ;     clear clear",
    "4      5      6      .     space space", "1      2      3      0     -     -",
    "cancel cancel cancel ok    ok    ok",    nullptr};

} // namespace

GCodeKeypad::GCodeKeypad(QWidget *parent) : QDialog(parent) {}

GCodeKeypad::~GCodeKeypad() = default;

GCodeKeypad *GCodeKeypad::instance()
{
    const KeypadFace face = {keys, narrowKeys, 38, QSize(88, 72), false};
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
