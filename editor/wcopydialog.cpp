// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "wcopydialog.h"

#include "hmidevice/numerickeypad.h"

#include <QBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>

namespace {

const int countWidth = 48;
// The device library's own number for the keypad's way of editing.
const int keypadEditMode = 10;

} // namespace

WCopyDialog::WCopyDialog(QWidget *parent) : Dialog(parent), minimum(0), maximum(0)
{
    setTitle(tr("Copy"));

    currentLineLabel = new QLabel(this);
    QHBoxLayout *lineRow = new QHBoxLayout;
    lineRow->addWidget(new QLabel(tr("Current line:"), this));
    lineRow->addWidget(currentLineLabel);
    lineRow->addStretch(1);

    countEdit = new QLineEdit(this);
    QPushButton *minusButton = new QPushButton(QLatin1String("-"), this);
    QPushButton *plusButton = new QPushButton(QLatin1String("+"), this);
    countEdit->setFixedWidth(countWidth);
    minusButton->setFixedWidth(countWidth);
    plusButton->setFixedWidth(countWidth);
    countEdit->installEventFilter(this);
    QHBoxLayout *countRow = new QHBoxLayout;
    countRow->addWidget(new QLabel(tr("Copy count:"), this));
    countRow->addWidget(countEdit);
    countRow->addWidget(minusButton);
    countRow->addWidget(plusButton);

    QPushButton *okButton = new QPushButton(tr("OK"), this);
    QPushButton *cancelButton = new QPushButton(tr("Cancel"), this);
    // Return in the field is the answer; else the toolkit would take "-", the first button.
    okButton->setDefault(true);
    QHBoxLayout *buttonRow = new QHBoxLayout;
    buttonRow->addStretch(1);
    buttonRow->addWidget(okButton);
    buttonRow->addWidget(cancelButton);

    QVBoxLayout *rows = new QVBoxLayout(this);
    rows->addLayout(lineRow);
    rows->addLayout(countRow);
    rows->addLayout(buttonRow);

    connect(minusButton, SIGNAL(clicked()), this, SLOT(slot_minus()));
    connect(plusButton, SIGNAL(clicked()), this, SLOT(slot_plus()));
    connect(cancelButton, SIGNAL(clicked()), this, SLOT(close()));
    connect(okButton, SIGNAL(clicked()), this, SLOT(accept()));
}

void WCopyDialog::setCurrentLine(int line)
{
    currentLineLabel->setText(QString::number(line));
}

void WCopyDialog::setRange(int least, int most)
{
    minimum = least;
    maximum = most;
    countEdit->setValidator(new QIntValidator(least, most, this));
    countEdit->setText(QLatin1String("1"));
}

int WCopyDialog::count() const
{
    return countEdit->text().toInt();
}

QString WCopyDialog::text() const
{
    return keypadText;
}

void WCopyDialog::setText(const QString &text)
{
    keypadText = text;
}

void WCopyDialog::slot_minus()
{
    const int shown = count();
    if (shown > minimum)
        countEdit->setText(QString::number(shown - 1));
}

void WCopyDialog::slot_plus()
{
    const int shown = count();
    if (shown < maximum)
        countEdit->setText(QString::number(shown + 1));
}

bool WCopyDialog::eventFilter(QObject *object, QEvent *event)
{
    if (!object)
        return false;
    if (object == countEdit && event->type() == QEvent::MouseButtonPress
        && static_cast<QMouseEvent *>(event)->button() != Qt::RightButton)
        editCountOnKeypad();
    return QDialog::eventFilter(object, event);
}

void WCopyDialog::showEvent(QShowEvent *event)
{
    Dialog::showEvent(event);
}

void WCopyDialog::editCountOnKeypad()
{
    NumericKeypad *keypad = NumericKeypad::instance();
    if (!keypad)
        return;
    keypad->setObject(this);
    keypad->setEditMode(keypadEditMode);
    keypad->setDecimalPointEnabled(false);
    keypad->setValidator(new QIntValidator(minimum, maximum, this));
    keypad->setLimitToolTip(QString::fromLatin1(" min:%1, max:%2").arg(minimum).arg(maximum));
    keypad->setText(countEdit->text());
    if (keypad->exec() != QDialog::Accepted)
        return;
    const int entered = text().toInt();
    if (entered >= minimum && entered <= maximum)
        countEdit->setText(text());
}
