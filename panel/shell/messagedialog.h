// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef MESSAGEDIALOG_H
#define MESSAGEDIALOG_H

#include "base/message.h"
#include "dialog.h"

class MessageLog;
class QScrollArea;

/// The last messages in full with their times, the newest on top, a page at a time. Messages that
/// stand have the ground of their tone. The dialog follows the log while it is open.
class MessageDialog : public Dialog
{
    Q_OBJECT

public:
    /// \a subject, what the operator works on or touched, stands above them in full. \a log must
    /// outlive the dialog.
    MessageDialog(MessageLog *log, const QString &subject, QWidget *parent = nullptr);

    /// "13:05:09", and the date before that if it is not \a today.
    static QString shownTime(const QDateTime &time, const QDate &today);

private:
    QWidget *makeLine(const Message &message, bool stands) const;
    void fill();

    MessageLog *m_log;
    QScrollArea *m_area;
};

#endif // MESSAGEDIALOG_H
