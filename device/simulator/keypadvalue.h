// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef KEYPADVALUE_H
#define KEYPADVALUE_H

#include <QCoreApplication>
#include <QRect>
#include <QString>

class QObject;
class QValidator;
struct KeypadRequest;

/// The least and the most that a number may be, both included.
class KeypadLimits
{
    Q_DECLARE_TR_FUNCTIONS(KeypadLimits)

public:
    /// Open to both sides.
    KeypadLimits();
    /// Ends that are no numbers, or the wrong way round, count as none.
    KeypadLimits(double minimum, double maximum);

    /// What the properties hmiMinimum, hmiMaximum and hmiInteger of \a object say.
    static KeypadLimits ofProperties(const QObject *object);
    /// What \a hint says in the form " min:1, max:20", which the library's dialogs use.
    static KeypadLimits ofHint(const QString &hint);
    static KeypadLimits ofValidator(const QValidator *validator);

    bool isBounded() const;
    double minimum() const { return m_minimum; }
    double maximum() const { return m_maximum; }
    void setWhole(bool isWhole) { m_isWhole = isWhole; }
    /// Whether the number has to be a whole one.
    bool isWhole() const { return m_isWhole; }
    /// "0.5 to 8.5", for the operator; empty without limits.
    QString text() const;
    /// One end as the operator reads it.
    static QString shown(double end);

private:
    double m_minimum;
    double m_maximum;
    bool m_isWhole = false;
};

/// What is known of the value that a keypad edits: what the host tells by properties of the object
/// that receives the text, else what can be told from the caller's own calls.
struct KeypadValue
{
    KeypadValue() = default;
    /// \a forNumbers says whether the caller's hint may tell limits.
    KeypadValue(const KeypadRequest &request, bool forNumbers);

    /// The name, the unit and the limits, as far as known: "N5 Tension, N, 0.5 to 8.5".
    QString title() const;

    QString name;
    QString unit;
    /// A line of help.
    QString hint;
    /// What a number has to keep to, beside what a validator says.
    KeypadLimits limits;
    /// The limits to show, when the caller's own hint doesn't.
    QString range;
    /// What has to stay in view, in screen coordinates; empty if nothing is known.
    QRect place;
};

#endif // KEYPADVALUE_H
