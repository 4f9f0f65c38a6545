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

/// Stands between the OK of the library's program picker and the name that it takes: a name with a
/// path, a hidden or an empty one is refused there, in words above the list.
///
/// The dialog owns its guard.
class PickerGuard : public QObject
{
    Q_OBJECT

public:
    explicit PickerGuard(QDialog *dialog);

    /// The dialog proposes \a name instead of its first file, and a name without a suffix gets one
    /// proposed.
    void proposeForSaving(const QString &name);
    /// The names in the list.
    QStringList listedNames() const;

    /// \a hold runs for each name that can be one, and leads to one pass() or drop().
    void onName(const std::function<void(const QString &)> &hold) { m_hold = hold; }
    void pass();
    /// The dialog stays as it is; \a reason, if there is one, is shown in it.
    void drop(const QString &reason = QString());

private:
    void check();
    bool wantsSuffix(const QString &name) const;
    void say(const QString &text);

    std::function<void(const QString &)> m_hold;
    QLineEdit *m_field;
    ClickGate *m_gate;
    QLabel *m_hint;
    bool m_isForSaving = false;
    QString m_bareName;
};

#endif // PICKERGUARD_H
