// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef COMBOLINEEDIT_H
#define COMBOLINEEDIT_H

#include <QLineEdit>
#include <QStringList>

/// The value field of a panel without a keyboard.
///
/// It shows key ":" value, and a tap opens an on-screen keypad on the value alone. The field does
/// not take the new text itself: whoever answers changed() sets it, and so brings the key back.
/// Owned by its parent.
///
///     ComboLineEdit *field = new ComboLineEdit(row);
///     field->setNumeric(true);
///     connect(field, SIGNAL(changed(QString)), field, SLOT(setText(QString)));
class ComboLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit ComboLineEdit(QWidget *parent);

    /// Which keypad a tap opens: true the numeric one, false, as at first, the character one.
    void setNumeric(bool numeric);
    bool isNumeric() const;

    /// Whether a keypad is open for this field.
    bool isAtKeypad() const;

Q_SIGNALS:
    /// A tap, whatever became of the keypad. After changed(), if that comes at all.
    void clicked();
    /// The keypad was accepted. \a text is the field's key, ":" and the new value; the value alone
    /// in a field that shows no colon. A text with several colons keeps its first and last part.
    /// On the numeric keypad an answer that is no number leaves the old value.
    void changed(QString text);

protected:
    /// Runs the keypad; returns when that is closed. The field may be deleted meanwhile.
    void mousePressEvent(QMouseEvent *event) override;

private:
    bool runKeypad();
    void takeAnswer();

    QStringList m_parts; // the text at ":", as of the last tap
    bool m_numeric;
    bool m_isAtKeypad;
};

#endif // COMBOLINEEDIT_H
