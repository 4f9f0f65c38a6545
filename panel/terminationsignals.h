// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef TERMINATIONSIGNALS_H
#define TERMINATIONSIGNALS_H

#include <QObject>

/// Tells when the system asks by SIGINT, SIGTERM or SIGHUP that the program end. OrderlyEnd does
/// that. One for each program.
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
