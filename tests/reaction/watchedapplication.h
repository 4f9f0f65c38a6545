// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef WATCHEDAPPLICATION_H
#define WATCHEDAPPLICATION_H

#include <QApplication>

/// The application of a program that is measured.
class WatchedApplication : public QApplication
{
    Q_OBJECT

public:
    WatchedApplication(int &argc, char **argv) : QApplication(argc, argv) {}

    bool notify(QObject *receiver, QEvent *event) override;

Q_SIGNALS:
    /// What led to a paint is over: what was painted is on the screen.
    void painted();

private:
    bool m_hasPainted = false;
};

#endif // WATCHEDAPPLICATION_H
