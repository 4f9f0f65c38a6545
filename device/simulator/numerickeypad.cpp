// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "hmidevice/numerickeypad.h"

#include "keypaddialog.h"

namespace {

typedef KeypadDialog<NumericKeypad> NumericDialog;

const char *const keys[] = {"7    8  9  back   back",  //
                            "4    5  6  clear  clear", //
                            "1    2  3  left   right", //
                            "sign 0  .  cancel ok",    //
                            nullptr};

const char *const narrowKeys[] = {"7      8      9  back",  //
                                  "4      5      6  clear", //
                                  "1      2      3  left",  //
                                  "sign   0      .  right", //
                                  "cancel cancel ok ok",    //
                                  nullptr};

// The block of digits stays as it is, for a finger that knows its places.
const char *const flatKeys[] = {"7 8 9 back back clear clear",  //
                                "4 5 6 sign left right cancel", //
                                "1 2 3 0    .    ok    ok",     //
                                nullptr};

} // namespace

NumericKeypad::NumericKeypad(QWidget *parent) : QDialog(parent) {}

NumericKeypad::~NumericKeypad() = default;

NumericKeypad *NumericKeypad::instance()
{
    KeypadFace face(keys, narrowKeys, 64, QSize(104, 76), true);
    face.flat = flatKeys;
    face.name = QT_TRANSLATE_NOOP("KeypadFrame", "Number");
    return NumericDialog::instance(face);
}

void NumericKeypad::setObject(QObject *object)
{
    NumericDialog::frameOf(this)->request().object = object;
}

void NumericKeypad::setValidator(const QValidator *validator)
{
    NumericDialog::frameOf(this)->setValidator(validator);
}

void NumericKeypad::setText(const QString &text)
{
    NumericDialog::frameOf(this)->setText(text);
}

void NumericKeypad::setLimitToolTip(const QString &toolTip)
{
    NumericDialog::frameOf(this)->request().limit = toolTip;
}

void NumericKeypad::setShowType(int)
{
    // The stand-in has one face.
}

void NumericKeypad::setEditMode(int)
{
    // The stand-in edits all numbers alike; the validator says what they may be.
}

void NumericKeypad::setDecimalPointEnabled(bool enabled)
{
    NumericDialog::frameOf(this)->request().pointEnabled = enabled;
}
