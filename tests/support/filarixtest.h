// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef FILARIXTEST_H
#define FILARIXTEST_H

#include "strictmessages.h"
#include "testcompat.h"

#include <QApplication>
#include <QObject>
#include <QTest>

/// Base of every test object. Each test starts with an empty home and with no settings, and ends
/// without an unexpected warning of the toolkit and without a stray top-level widget, seen or
/// hidden.
///
/// A test class that needs its own init() or cleanup() calls these from it.
class FilarixTest : public QObject
{
    Q_OBJECT

public:
    /// The private home; below it lies the program directory "cnc".
    static QString home();
    /// The program directory, made if it is missing.
    static QString programDir();

    /// Writes a file, making the folders above it. Fails the test if it can't.
    static void writeFile(const QString &path, const QByteArray &bytes);
    /// The bytes of a file; null when it can't be read.
    static QByteArray readFile(const QString &path);

    /// Removes what lies in a folder; the folder itself stays.
    static void emptyFolder(const QString &path);

    /// \a full, the number of cases, lines or rows of a long test, where the programs run as fast
    /// as on a PC; its FILARIX_TEST_SCALE-th part, \a least at the least, where they are slower by
    /// that factor. It makes a test smaller, never what it checks.
    static int scaled(int full, int least = 1);
    /// Whether this is the long run, FILARIX_TEST_LONG=1, for which nobody waits: as many cases as
    /// prove a thing, where the others take as many as find what breaks it soon.
    static bool isLongRun();
    /// A limit of time, longer by the same factor.
    static int patience(int milliseconds);
    /// Whether the sanitizers are built in, whose runtime keeps freed memory and adds its own.
    static bool isSanitized();

    /// A widget that is meant to outlive the test.
    void allowTopLevel(QWidget *widget);

protected Q_SLOTS:
    void init();
    void cleanup();

private:
    bool isLost(const QWidget *widget) const;

    QList<QWidget *> m_allowed;
    /// The top-level widgets that were there when the test began.
    QList<QWidget *> m_before;
};

/// Runs the test object \a test; 98 when it is not in the sandbox.
int filarixTestMain(QObject *test, int argc, char **argv);

#define FILARIX_TEST_MAIN(TestClass)                                                               \
    int main(int argc, char **argv)                                                                \
    {                                                                                              \
        QApplication application(argc, argv);                                                      \
        TestClass test;                                                                            \
        return filarixTestMain(&test, argc, argv);                                                 \
    }

#endif // FILARIXTEST_H
