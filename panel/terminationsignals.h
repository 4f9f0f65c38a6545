// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef TERMINATIONSIGNALS_H
#define TERMINATIONSIGNALS_H

#include <QObject>

/// Ends the application in order when the system asks for it by SIGINT, SIGTERM or SIGHUP, so that
/// a simulated stick is pulled and the window's settings are stored. One for each program.
class TerminationSignals : public QObject
{
    Q_OBJECT

public:
    explicit TerminationSignals(QObject *parent = nullptr);
    ~TerminationSignals() override;

Q_SIGNALS:
    void received();

private:
    void drain();
};

#endif // TERMINATIONSIGNALS_H
