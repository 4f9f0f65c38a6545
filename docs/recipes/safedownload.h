// SPDX-FileCopyrightText: 2026 The Filarix Module developers
// SPDX-License-Identifier: MIT

#ifndef SAFEDOWNLOAD_H
#define SAFEDOWNLOAD_H

#include "storedprogram.h"
#include "wmmainwindow.h"

//! [safe download]
/// Answers the window's D/L button. A program goes to the machine only if it is stored and is the
/// one on the screen, and the button comes back however the transfer ends.
class SafeDownload : public QObject
{
    Q_OBJECT

public:
    explicit SafeDownload(WMMainWindow *window) : QObject(window), m_window(window)
    {
        connect(window, SIGNAL(signal_download(QString)), SLOT(send(QString)));
    }

protected:
    /// Carries \a program over; what is saved meanwhile does not change it. In a host that serves
    /// events during the transfer the greyed button keeps a second one from starting.
    virtual bool transfer(const QByteArray &program) = 0;
    /// Tells the operator.
    virtual void tell(const QString &text) = 0;

private Q_SLOTS:
    void send(const QString &path)
    {
        if (path.isEmpty())
            return tell(tr("Save the program first."));
        const StoredProgram stored(m_window->findChild<WGCodeEditer *>(), path);
        if (!stored.isShownAsItIs() && !stored.isShownCleaned())
            return tell(tr("The stored program is not the one on the screen."));
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return tell(tr("The program cannot be read."));

        m_window->setDownloading(true);
        const bool isTaken = transfer(file.readAll());
        m_window->setDownloading(false);
        if (!isTaken)
            tell(tr("The machine did not take the program."));
    }

private:
    WMMainWindow *m_window;
};
//! [safe download]

#endif // SAFEDOWNLOAD_H
