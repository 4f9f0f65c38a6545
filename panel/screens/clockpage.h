// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef CLOCKPAGE_H
#define CLOCKPAGE_H

#include "screens/settingspage.h"

#include <QTimer>

class QDateTime;
class QLabel;

/// Date, time and time zone as the system has them, written as on all screens: 24 hours, and the
/// year first. The day of the week is in the language of the page's locale().
///
/// All three are shown and not set: the panel program runs without the right to set a clock.
class ClockPage : public SettingsPage
{
    Q_OBJECT

public:
    explicit ClockPage(QWidget *parent = nullptr);

    /// Shows that moment, until the next second.
    void showMoment(const QDateTime &moment);

protected:
    void changeEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void tick();

    QLabel *m_time;
    QLabel *m_date;
    QLabel *m_zone;
    QTimer m_timer;
};

#endif // CLOCKPAGE_H
