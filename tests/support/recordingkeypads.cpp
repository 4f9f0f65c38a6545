// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "recordingkeypads.h"

#include <hmidevice/characterkeypad.h>
#include <hmidevice/gcodekeypad.h>
#include <hmidevice/hmideviceinfo.h>
#include <hmidevice/numerickeypad.h>

#include <QEvent>
#include <QTimer>

namespace {

RecordingDevice &device()
{
    return RecordingDevice::instance();
}

void record(const char *keypad, const QString &call)
{
    device().calls.append(QLatin1String(keypad) + QLatin1Char('.') + call);
}

void recordText(const char *keypad, const char *operation, const QString &argument)
{
    record(keypad, QString::fromLatin1("%1(%2)").arg(QLatin1String(operation), argument));
}

QString className(const QObject *object)
{
    return object ? QLatin1String(object->metaObject()->className()) : QLatin1String("null");
}

void recordObject(const char *keypad, QObject *object)
{
    device().object = object;
    recordText(keypad, "setObject", className(object));
}

void recordValidator(const char *keypad, const QValidator *validator)
{
    device().validator = const_cast<QValidator *>(validator);
    recordText(keypad, "setValidator", className(validator));
}

/// Ends a keypad that exec() has just shown by the next scripted answer.
class Answerer : public QObject
{
    Q_OBJECT

public:
    Answerer(const char *name, QDialog *keypad) : QObject(keypad), m_name(name), m_keypad(keypad)
    {
        keypad->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        // A spontaneous one is the windowing system's late news of an earlier exec().
        if (watched == m_keypad && event->type() == QEvent::Show && !event->spontaneous()) {
            record(m_name, QLatin1String("exec"));
            QTimer::singleShot(0, this, SLOT(answer()));
        }
        return QObject::eventFilter(watched, event);
    }

private Q_SLOTS:
    void answer()
    {
        if (device().answers.isEmpty()) {
            qWarning("%s: exec() without a scripted answer", m_name);
            m_keypad->reject();
            return;
        }
        const RecordingDevice::Answer next = device().answers.takeFirst();
        if (next.action)
            next.action();
        if (!next.accept) {
            m_keypad->reject();
            return;
        }
        if (device().object)
            device().object->setProperty("text", next.text);
        m_keypad->accept();
    }

private:
    const char *m_name;
    QDialog *m_keypad;
};

/// The one keypad of a kind. Never deleted: it must outlive every test object.
template<class Keypad>
Keypad *theKeypad(const char *name)
{
    class Concrete : public Keypad
    {};

    record(name, QLatin1String("instance"));
    if (!device().instanceAvailable)
        return nullptr;
    static Keypad *keypad = nullptr;
    if (!keypad) {
        keypad = new Concrete;
        new Answerer(name, keypad);
    }
    return keypad;
}

const char numericName[] = "NumericKeypad";
const char characterName[] = "CharacterKeypad";
const char gcodeName[] = "GCodeKeypad";

} // namespace

bool HMIDeviceInfo::isTouchScreen()
{
    record("HMIDeviceInfo", QLatin1String("isTouchScreen"));
    return device().touchScreen;
}

NumericKeypad::NumericKeypad(QWidget *parent) : QDialog(parent) {}
NumericKeypad::~NumericKeypad() = default;
NumericKeypad *NumericKeypad::instance()
{
    return theKeypad<NumericKeypad>(numericName);
}
void NumericKeypad::setObject(QObject *object)
{
    recordObject(numericName, object);
}
void NumericKeypad::setValidator(const QValidator *validator)
{
    recordValidator(numericName, validator);
}
void NumericKeypad::setText(const QString &text)
{
    recordText(numericName, "setText", text);
}
void NumericKeypad::setLimitToolTip(const QString &toolTip)
{
    recordText(numericName, "setLimitToolTip", toolTip);
}
void NumericKeypad::setShowType(int type)
{
    recordText(numericName, "setShowType", QString::number(type));
}
void NumericKeypad::setEditMode(int mode)
{
    recordText(numericName, "setEditMode", QString::number(mode));
}
void NumericKeypad::setDecimalPointEnabled(bool enabled)
{
    recordText(numericName, "setDecimalPointEnabled", QLatin1String(enabled ? "true" : "false"));
}

CharacterKeypad::CharacterKeypad(QWidget *parent) : QDialog(parent) {}
CharacterKeypad::~CharacterKeypad() = default;
CharacterKeypad *CharacterKeypad::instance()
{
    return theKeypad<CharacterKeypad>(characterName);
}
void CharacterKeypad::setObject(QObject *object)
{
    recordObject(characterName, object);
}
void CharacterKeypad::setValidator(const QValidator *validator)
{
    recordValidator(characterName, validator);
}
void CharacterKeypad::setText(const QString &text)
{
    recordText(characterName, "setText", text);
}
void CharacterKeypad::setShowType(int type)
{
    recordText(characterName, "setShowType", QString::number(type));
}

GCodeKeypad::GCodeKeypad(QWidget *parent) : QDialog(parent) {}
GCodeKeypad::~GCodeKeypad() = default;
GCodeKeypad *GCodeKeypad::instance()
{
    return theKeypad<GCodeKeypad>(gcodeName);
}
void GCodeKeypad::setObject(QObject *object)
{
    recordObject(gcodeName, object);
}
void GCodeKeypad::setValidator(const QValidator *validator)
{
    recordValidator(gcodeName, validator);
}
void GCodeKeypad::setText(const QString &text)
{
    recordText(gcodeName, "setText", text);
}
void GCodeKeypad::setLimitToolTip(const QString &toolTip)
{
    recordText(gcodeName, "setLimitToolTip", toolTip);
}

#include "recordingkeypads.moc"
