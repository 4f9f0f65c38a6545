// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef VALUEEDIT_H
#define VALUEEDIT_H

#include <QLineEdit>

/// What may be typed into the value, beyond what a validator says of the whole text.
struct TypingRules
{
    /// A typed comma becomes a decimal point.
    bool commaIsPoint = false;
    /// Whether a point can be typed.
    bool pointEnabled = true;
    /// The only characters that can be typed; empty means all.
    QString allowed;
};

/// The value that a keypad edits. The field takes the keys of the keypad and of a keyboard alike.
/// Its letters become smaller, down to a readable size, so that a long text is seen whole.
class ValueEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit ValueEdit(QWidget *parent);

    void setRules(const TypingRules &rules) { m_rules = rules; }
    /// Puts what the rules let through of \a typed in place of the selection, or at the cursor.
    void type(const QString &typed);
    /// Does what the key of a keyboard does here.
    void press(Qt::Key key);
    /// Puts a minus sign in front, or takes it away. If the whole value was selected its digits
    /// are afterwards, so that the next digit replaces them and leaves the sign.
    void toggleSign();

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

public Q_SLOTS:
    /// Takes the size of letters that has room, and the colours of the look in use.
    void fitFont();

private:
    QString permitted(const QString &typed) const;
    int fittingSize() const;

    TypingRules m_rules;
    int m_fontSize = 0;
    int m_look = -1;
};

#endif // VALUEEDIT_H
