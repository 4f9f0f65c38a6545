// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef ABOUTPAGE_H
#define ABOUTPAGE_H

#include "screens/settingspage.h"

class QLabel;

/// What the panel is: program, version, toolkit and licences, where its data are, and how much room
/// they have left.
class AboutPage : public SettingsPage
{
    Q_OBJECT

public:
    /// \a folder is that of the panel's data.
    explicit AboutPage(const QString &folder, QWidget *parent = nullptr);

    /// Bytes left for programs; -1 when it can't be told, as at first.
    void showRoom(qint64 freeBytes);

protected:
    void changeEvent(QEvent *event) override;

private:
    void say();

    const QString m_folder;
    qint64 m_freeBytes = -1;
    QLabel *m_facts;
};

#endif // ABOUTPAGE_H
