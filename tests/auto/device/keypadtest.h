// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef KEYPADTEST_H
#define KEYPADTEST_H

#include "filarixtest.h"
#include "modaldriver.h"

#include <QAbstractButton>
#include <QDialog>
#include <QLineEdit>
#include <QVariant>

/// Stands for a caller: it has the property that a keypad writes, and counts the writing.
class Caller : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    QString text() const { return m_text; }
    void setText(const QString &text)
    {
        m_text = text;
        ++writes;
    }

    int writes = 0;

private:
    QString m_text;
};

/// What the tests of the three keypads share. The screen is set before each test, so that none
/// depends on that of the machine.
class KeypadTest : public FilarixTest
{
    Q_OBJECT

public:
    /// The panel's screen for the keypads. Without \a dotsPerInch they take the usual ones.
    static void setScreen(const QRect &screen, double dotsPerInch = 0);

    /// Runs \a keypad and \a step while it is open. A step that leaves it open, or fails, has it
    /// rejected, so that no test hangs.
    static int run(QDialog *keypad, const std::function<void()> &step);

    /// A key by the name of its token; fails the test and gives null if there is none.
    static QAbstractButton *key(QDialog *keypad, const char *token);
    /// Presses keys one after the other, each named by its token.
    static void click(QDialog *keypad, const char *tokens);
    /// The same, and turns to the other page for a key that stands there.
    static void clickOnAnyPage(QDialog *keypad, const char *tokens);
    /// The key that turns to another page, or null.
    static QAbstractButton *pageKey(QDialog *keypad);
    static QLineEdit *value(QDialog *keypad);
    /// The text of one of the lines "title", "hint", "oldValue", "limit" and "reason"; null while
    /// it is hidden.
    static QString line(QDialog *keypad, const char *name);

    /// What is wrong with the place of an open keypad or of a part of it, or nothing. \a keySide is
    /// the smallest width and height of a key.
    static QString layoutFault(QDialog *keypad, const QRect &screen, int keySide);

    static void addScreens();

protected Q_SLOTS:
    void init();
};

#endif // KEYPADTEST_H
