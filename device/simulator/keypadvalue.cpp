// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#include "keypadvalue.h"

#include "keypadframe.h"

#include <QDialog>
#include <QRegExp>
#include <QStringList>
#include <QVariant>

#include <limits>

namespace {

const double unlimited = std::numeric_limits<double>::infinity();
// Enough for any setting of a machine, and no rounding of a double shows.
const int digits = 12;

/// The number in the property \a name of \a object, else \a otherwise.
double numberOf(const QObject *object, const char *name, double otherwise)
{
    bool ok = false;
    const double number = object ? object->property(name).toDouble(&ok) : 0;
    return ok ? number : otherwise;
}

/// The number behind \a word and a colon, else \a otherwise.
double numberAfter(const QString &word, const QString &text, double otherwise)
{
    QRegExp pattern(word + QLatin1String("\\s*:\\s*([-+]?[0-9]+(\\.[0-9]+)?)"),
                    Qt::CaseInsensitive);
    return pattern.indexIn(text) < 0 ? otherwise : pattern.cap(1).toDouble();
}

bool hasLetter(const QString &text)
{
    for (int i = 0; i < text.length(); ++i) {
        if (text.at(i).isLetter())
            return true;
    }
    return false;
}

/// A field that shows key ":" value names the value itself. An address and its port are no such
/// pair.
QString keyOf(const QObject *object, const QString &value)
{
    const QString shown = object->property("text").toString();
    if (!shown.endsWith(QLatin1Char(':') + value))
        return QString();
    const QString key = shown.section(QLatin1Char(':'), 0, 0).trimmed();
    return hasLetter(key) ? key : QString();
}

QString accessibleNameOf(const QObject *object)
{
#ifndef QT_NO_ACCESSIBILITY
    if (const QWidget *widget = qobject_cast<const QWidget *>(object))
        return widget->accessibleName();
#endif
    return QString();
}

QString nameOf(const QObject *object, const QString &value)
{
    if (!object)
        return QString();
    QString named = object->property("hmiName").toString().simplified();
    if (!named.isEmpty())
        return named;
    QString key = keyOf(object, value);
    if (!key.isEmpty())
        return key;
    QString accessible = accessibleNameOf(object);
    if (!accessible.isEmpty())
        return accessible;
    // A dialog that asks for one value has its name on top.
    const QDialog *dialog = qobject_cast<const QDialog *>(object);
    return dialog ? dialog->windowTitle().remove(QLatin1String("[*]")) : QString();
}

QString lineOf(const QObject *object, const char *name)
{
    return object ? object->property(name).toString().simplified() : QString();
}

/// A window as a whole is too large to be kept in view.
QRect placeOf(const QObject *object)
{
    const QRect named = object ? object->property("hmiEditedRect").toRect() : QRect();
    if (!named.isEmpty())
        return named;
    const QWidget *widget = qobject_cast<const QWidget *>(object);
    if (!widget || widget->isWindow() || !widget->isVisible())
        return QRect();
    return QRect(widget->mapToGlobal(QPoint(0, 0)), widget->size());
}

} // namespace

KeypadLimits::KeypadLimits() : m_minimum(-unlimited), m_maximum(unlimited) {}

KeypadLimits::KeypadLimits(double minimum, double maximum) : m_minimum(minimum), m_maximum(maximum)
{
    if (!(minimum <= maximum)) {
        m_minimum = -unlimited;
        m_maximum = unlimited;
    }
}

KeypadLimits KeypadLimits::ofProperties(const QObject *object)
{
    KeypadLimits limits(numberOf(object, "hmiMinimum", -unlimited),
                        numberOf(object, "hmiMaximum", unlimited));
    limits.setWhole(object && object->property("hmiInteger").toBool());
    return limits;
}

KeypadLimits KeypadLimits::ofHint(const QString &hint)
{
    return KeypadLimits(numberAfter(QLatin1String("\\bmin"), hint, -unlimited),
                        numberAfter(QLatin1String("\\bmax"), hint, unlimited));
}

KeypadLimits KeypadLimits::ofValidator(const QValidator *validator)
{
    if (const QDoubleValidator *real = qobject_cast<const QDoubleValidator *>(validator))
        return KeypadLimits(real->bottom(), real->top());
    const QIntValidator *whole = qobject_cast<const QIntValidator *>(validator);
    if (!whole)
        return KeypadLimits();
    // The ends of the type are none of the value.
    const bool hasBottom = whole->bottom() > std::numeric_limits<int>::min();
    const bool hasTop = whole->top() < std::numeric_limits<int>::max();
    return KeypadLimits(hasBottom ? whole->bottom() : -unlimited,
                        hasTop ? whole->top() : unlimited);
}

bool KeypadLimits::isBounded() const
{
    return m_minimum > -unlimited || m_maximum < unlimited;
}

QString KeypadLimits::text() const
{
    if (!isBounded())
        return QString();
    if (m_maximum == unlimited)
        return tr("at least %1").arg(shown(m_minimum));
    if (m_minimum == -unlimited)
        return tr("at most %1").arg(shown(m_maximum));
    return tr("%1 to %2").arg(shown(m_minimum), shown(m_maximum));
}

QString KeypadLimits::shown(double end)
{
    return QString::number(end, 'g', digits);
}

KeypadValue::KeypadValue(const KeypadRequest &request, bool forNumbers)
    : name(nameOf(request.object, request.text))
    , unit(lineOf(request.object, "hmiUnit"))
    , hint(lineOf(request.object, "hmiHint"))
    , limits(KeypadLimits::ofProperties(request.object))
    , range(limits.text())
    , place(placeOf(request.object))
{
    if (limits.isBounded())
        return;
    if (forNumbers && !request.limit.isEmpty()) {
        const bool isWhole = limits.isWhole();
        limits = KeypadLimits::ofHint(request.limit);
        limits.setWhole(isWhole);
    }
    if (request.limit.isEmpty())
        range = KeypadLimits::ofValidator(request.validator).text();
}

QString KeypadValue::title() const
{
    QStringList parts;
    parts << name << unit << range;
    parts.removeAll(QString());
    return parts.join(QLatin1String(", "));
}
