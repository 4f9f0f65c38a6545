// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "combolineedit.h"

#include "devicefile_p.h"

#include <hmidevice/characterkeypad.h>
#include <hmidevice/numerickeypad.h>

#include <QApplication>
#include <QDesktopWidget>
#include <QPointer>
#include <QSettings>

namespace {

const int smallPanelType = 9;

/// Whether the panel is the small one, on which every keypad fills the screen.
bool isSmallPanel()
{
    // Read at each tap: the panel's own programs may write the file while we run.
    const QSettings settings(DeviceFile::path(), QSettings::IniFormat);
    return settings.value(QLatin1String("HMIDeviceType"), 0).toInt() == smallPanelType;
}

/// Opens the keypad on \a value. True if its answer was accepted and stands in the field.
template<class Keypad>
bool accepted(ComboLineEdit *field, const QString &value, const QSize &size)
{
    Keypad *keypad = Keypad::instance();
    if (!keypad)
        return false;
    keypad->resize(size);
    keypad->setObject(field);
    keypad->setText(value);
    // The keypad is shared: the check of the field before goes first.
    keypad->setValidator(nullptr);
    keypad->setValidator(field->validator());
    keypad->setShowType(0);
    return keypad->exec() == 1;
}

} // namespace

ComboLineEdit::ComboLineEdit(QWidget *parent)
    : QLineEdit(parent), m_numeric(false), m_isAtKeypad(false)
{}

void ComboLineEdit::setNumeric(bool numeric)
{
    m_numeric = numeric;
}

bool ComboLineEdit::isNumeric() const
{
    return m_numeric;
}

bool ComboLineEdit::isAtKeypad() const
{
    return m_isAtKeypad;
}

void ComboLineEdit::mousePressEvent(QMouseEvent *)
{
    // The keypad runs an event loop, and the receivers are the host's: either can delete us.
    const QPointer<ComboLineEdit> self(this);
    m_parts = text().split(QLatin1Char(':'));
    const bool wasAtKeypad = m_isAtKeypad;
    m_isAtKeypad = true;
    const bool isAccepted = runKeypad();
    if (self)
        m_isAtKeypad = wasAtKeypad;
    if (self && isAccepted) {
        takeAnswer();
        // The change is stored before the tap is reported.
        Q_EMIT changed(m_parts.size() < 2 ? text()
                                          : m_parts.first() + QLatin1Char(':') + m_parts.last());
    }
    if (self)
        Q_EMIT clicked();
}

bool ComboLineEdit::runKeypad()
{
    const QSize smallSize(480, 272);
    const bool isSmall = isSmallPanel();
    if (m_numeric)
        return accepted<NumericKeypad>(this, m_parts.last(), isSmall ? smallSize : QSize(800, 480));
    const QSize screen = QApplication::desktop()->availableGeometry(-1).size();
    return accepted<CharacterKeypad>(this, m_parts.last(), isSmall ? smallSize : screen);
}

void ComboLineEdit::takeAnswer()
{
    const QString answer = text();
    bool isUsable = true;
    if (m_numeric)
        answer.toDouble(&isUsable);
    if (isUsable)
        m_parts.last() = answer;
}
