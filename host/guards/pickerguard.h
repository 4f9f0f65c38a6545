// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef PICKERGUARD_H
#define PICKERGUARD_H

#include <QObject>
#include <QStringList>

#include <functional>

class ClickGate;
class QDialog;
class QLabel;
class QLineEdit;

/// Stands between the OK of the library's program picker and the name that the dialog takes. A name
/// with a path, a hidden name and an empty name are refused, in words above the list.
///
/// The dialog owns its guard, and may have one at the most.
///
///     PickerGuard *guard = new PickerGuard(dialog);
///     guard->onName([guard](const QString &name) { guard->pass(); });
class PickerGuard : public QObject
{
    Q_OBJECT

public:
    /// \a dialog is a WFileDialog: its first line edit holds the name, its first push button is OK.
    explicit PickerGuard(QDialog *dialog);

    /// The dialog proposes \a name, once events are served, in the place of its first file. A name
    /// without a suffix gets one proposed from now on.
    void proposeForSaving(const QString &name);
    /// The names that the dialog lists. What its table shows may be sorted and filtered since.
    QStringList listedNames() const { return m_names; }

    /// \a hold runs for each name that a program can have, and leads to one pass() or drop(), at
    /// once or later. Whoever holds a name for long keeps a QPointer to the guard.
    void onName(const std::function<void(const QString &)> &hold) { m_hold = hold; }
    /// The dialog takes the name that is held.
    void pass();
    /// The dialog stays open. \a reason, a sentence, is shown above the list; an empty one shows
    /// nothing.
    void drop(const QString &reason = QString());

private:
    void check();
    bool wantsSuffix(const QString &name) const;
    void say(const QString &text);

    std::function<void(const QString &)> m_hold;
    const QStringList m_names;
    QLineEdit *m_field;
    ClickGate *m_gate;
    QLabel *m_hint;
    bool m_isForSaving = false;
    QString m_bareName;
};

#endif // PICKERGUARD_H
